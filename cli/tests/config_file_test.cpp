#include "cli/config_file.h"

#include "test_support/temporary_folder.h"

#include <string> // std::string
#include <vector> // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::cli {
namespace {

class ConfigFileTest : public testing::Test {
  protected:
    [[nodiscard]] std::string path(const std::string& extension) const {
        return folder_.at("config." + extension);
    }

    /// Writes a file of this content and loads it.
    void load(const std::string& content, const std::string& extension = "json") {
        file.load(folder_.write("config." + extension, content));
    }

    ConfigFile file;

  private:
    test_support::TemporaryFolder folder_;
};

/// The ConfigFileError that `call` throws, as its text and position.
struct Fault {
    std::string text;
    jv::Pos pos;
};
template <typename Call>
Fault faultOf(Call call) {
    try {
        call();
    } catch (const ConfigFileError& error) {
        return {error.what(), error.pos()};
    }
    return {"nothing thrown", {}};
}

TEST_F(ConfigFileTest, TheVersionIsAStringOfOnePointZero) {
    struct Row {
        std::string content;
        std::string extension;
        std::string text;
        jv::Pos pos;
    };
    const std::vector<Row> rows = {
        {"{\"version\": \"1.0\"}", "json", "nothing thrown", {}},
        {"version: '1.0'\n", "yaml", "nothing thrown", {}},
        {"{\n  \"version\": \"2.0\"}", "json", "Unsupported configuration version: '2.0'.", {2, 14}},
        {"{\"version\": \"1.0 \"}", "json", "Unsupported configuration version: '1.0 '.", {1, 13}},
        // YAML takes it for a number; its reader counts from 0.
        {"version: 1.0\n", "yaml", "Missing configuration version.", {0, 0}},
        {" {\"version\": 1.0}", "json", "Missing configuration version.", {1, 2}},
        {"{}", "json", "Missing configuration version.", {1, 1}},
        {"[\"version\", \"1.0\"]", "json", "Missing configuration version.", {1, 1}},
        {"\"1.0\"", "json", "Missing configuration version.", {1, 1}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.content);
        const Fault fault = faultOf([&] { load(row.content, row.extension); });
        EXPECT_EQ(fault.text, row.text);
        EXPECT_EQ(fault.pos, row.pos);
    }
}

TEST_F(ConfigFileTest, ASectionIsAnObjectOrAbsent) {
    EXPECT_EQ(file.commandSection("lint"), nullptr); // nothing is loaded yet
    load(R"({"version": "1.0", "commands": {"lint": {"a": "x"}, "diff": 1, "format": null}})");
    ASSERT_NE(file.commandSection("lint"), nullptr);
    EXPECT_EQ(file.commandSection("lint")->getRequiredString("a")->text(), "x");
    EXPECT_EQ(file.commandSection("generate"), nullptr);
    for (const std::string name : {"diff", "format"}) {
        const Fault fault = faultOf([&] { static_cast<void>(file.commandSection(name)); });
        EXPECT_EQ(fault.text, "An object is expected for '" + name + "'");
        EXPECT_EQ(fault.pos, jv::Pos{});
    }
    load(R"({"version": "1.0", "commands": []})");
    EXPECT_EQ(file.commandSection("lint"), nullptr);
}

TEST_F(ConfigFileTest, CustomFormatsAreAnArrayOrAbsent) {
    load(R"({"version": "1.0"})");
    EXPECT_EQ(file.customFormats(), nullptr);
    load(R"({"version": "1.0", "openapi": {"custom_formats": []}})");
    ASSERT_NE(file.customFormats(), nullptr);
    EXPECT_EQ(file.customFormats()->size(), 0U);
    load(R"({"version": "1.0", "openapi": {"custom_formats": {}}})");
    const Fault fault = faultOf([&] { static_cast<void>(file.customFormats()); });
    EXPECT_EQ(fault.text, "An object is expected for '/openapi/custom_formats'");
    EXPECT_EQ(fault.pos, (jv::Pos{1, 50}));
}

TEST_F(ConfigFileTest, AFaultInsideOfASectionIsOneOfTheFile) {
    load("{\"version\": \"1.0\", \"commands\":\n  {\"format\": {\"indent\": \"x\"}}}");
    const Fault fault = faultOf([&] {
        readConfigFile(file, path("json"),
                       [&] { static_cast<void>(file.commandSection("format")->getInteger("indent")); });
    });
    EXPECT_EQ(fault.text, "An integer value is expected for 'indent'.");
    EXPECT_EQ(fault.pos, (jv::Pos{2, 14})); // the object that was asked, which is what the error names

    // Faults of other kinds are not touched.
    EXPECT_THROW(readConfigFile(file, path("json"), [] { throw std::out_of_range("other"); }),
                 std::out_of_range);
    EXPECT_THROW(readConfigFile(file, "missing.json", [] { FAIL() << "must not be read on"; }),
                 std::runtime_error);
}

} // namespace
} // namespace specloom::cli
