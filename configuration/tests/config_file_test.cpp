#include "configuration/config_file.h"
#include "foundation/memory_file_system.h"

#include <string> // std::string
#include <vector> // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::configuration {
namespace {

class ConfigFileTest : public testing::Test {
  protected:
    /// Loads a file of this content.
    void load(std::string_view content, const std::string& extension = "json") {
        const std::string path = "config." + extension;
        file.load(path, MemoryFileSystem{{path, content}});
    }

    ConfigFile file;
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

TEST_F(ConfigFileTest, theVersionIsAStringOfOnePointZero) {
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

TEST_F(ConfigFileTest, aSectionIsAnObjectOrAbsent) {
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

TEST_F(ConfigFileTest, customFormatsAreAnArrayOrAbsent) {
    load(R"({"version": "1.0"})");
    EXPECT_EQ(file.customFormats(), nullptr);
    load(R"({"version": "1.0", "openapi": {"custom_formats": []}})");
    ASSERT_NE(file.customFormats(), nullptr);
    EXPECT_EQ(file.customFormats()->size(), 0U);
    load(R"({"version": "1.0", "openapi": {"custom_formats": [{"name": "isbn", "type": "string"}]}})");
    openapi::SchemaFormatRegistry formats;
    file.addCustomFormatsTo(formats);
    EXPECT_NE(formats.find("isbn"), nullptr);
    load(R"({"version": "1.0", "openapi": {"custom_formats": {}}})");
    const Fault fault = faultOf([&] { static_cast<void>(file.customFormats()); });
    EXPECT_EQ(fault.text, "An object is expected for '/openapi/custom_formats'");
    EXPECT_EQ(fault.pos, (jv::Pos{1, 50}));
}

TEST_F(ConfigFileTest, aFaultInsideOfASectionIsOneOfTheFile) {
    const MemoryFileSystem files{
        {"c.json", "{\"version\": \"1.0\", \"commands\":\n  {\"format\": {\"indent\": \"x\"}}}"}};
    const auto readIndent = [](const ConfigFile& given) {
        static_cast<void>(given.commandSection("format")->getInteger("indent"));
    };
    const Fault fault = faultOf([&] { readConfigFile("c.json", readIndent, files); });
    EXPECT_EQ(fault.text, "An integer value is expected for 'indent'.");
    EXPECT_EQ(fault.pos, (jv::Pos{2, 14})); // the object that was asked, which is what the error names

    // Faults of other kinds are not touched.
    const auto failOtherwise = [](const ConfigFile&) { throw std::out_of_range("other"); };
    EXPECT_THROW(readConfigFile("c.json", failOtherwise, files), std::out_of_range);
    EXPECT_THROW(readConfigFile("missing.json", readIndent, files), std::runtime_error);
}

} // namespace
} // namespace specloom::configuration
