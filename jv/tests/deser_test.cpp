#include "foundation/memory_file_system.h"
#include "jv/deser.h"
#include "test_support/temporary_folder.h"

#include <algorithm>  // std::ranges::sort
#include <filesystem> // std::filesystem::...
#include <functional> // std::function
#include <sstream>    // std::ostringstream
#include <stdexcept>  // std::runtime_error
#include <string>     // std::string
#include <utility>    // std::pair
#include <vector>     // std::vector

#include <gtest/gtest.h>

namespace specloom::jv {
namespace {

std::string messageOf(const std::function<void()>& action) {
    try {
        action();
        return "";
    } catch (const std::exception& error) {
        return error.what();
    }
}

class Files : public testing::Test {
  protected:
    [[nodiscard]] std::string write(std::string_view name, std::string_view text) const {
        return folder_.write(name, text);
    }
    [[nodiscard]] std::string path(std::string_view name) const { return folder_.at(name); }

  private:
    test_support::TemporaryFolder folder_;
};

TEST(Format, comesFromTheExtension) {
    struct Case {
        const char* path;
        std::optional<DocumentFormat> format;
    };
    const std::vector<Case> cases = {
        {"a.json", DocumentFormat::Json},
        {"a.JSON", DocumentFormat::Json},
        {"x/y.z/a.yaml", DocumentFormat::Yaml},
        {"a.b.yml", DocumentFormat::Yaml},
        {"a.txt", std::nullopt},
        {"a", std::nullopt},
        {".json", std::nullopt},
        {"..", std::nullopt},
        {".", std::nullopt},
        {"a.json/b", std::nullopt},
        {"", std::nullopt},
        {"a.", std::nullopt},
        {"a.json:stream", DocumentFormat::Json},
        {"..json", DocumentFormat::Json},
    };
    for (const Case& test : cases)
        EXPECT_EQ(formatFromPath(test.path), test.format) << test.path;
    EXPECT_EQ(extensionOf(DocumentFormat::Json), ".json");
    EXPECT_EQ(extensionOf(DocumentFormat::Yaml), ".yaml");
}

TEST(Load, tellsWhatIsWrong) {
    const MemoryFileSystem files{
        {"doc.txt", "{}"}, {"folder.json/file", ""}, {"bad.json", "{"}, {"bad.yaml", "["}};
    for (const auto& [path, text] : std::vector<std::pair<const char*, const char*>>{
             {"none.txt", "Cannot open file: none.txt"}, // the open comes first
             {"doc.txt", "Unsupported file format: doc.txt"},
             {"folder.json", "Cannot open file: folder.json"},
             {"bad.json", "JSON parse error"},
             {"bad.yaml", "Failed to parse YAML"}})
        EXPECT_EQ(messageOf([&, name = path] { static_cast<void>(loadDocument(files, name)); }), text);

    const LoadedDocument forced = loadDocument(files, "doc.txt", LoadOptions{DocumentFormat::Yaml, {}});
    EXPECT_EQ(forced.format, DocumentFormat::Yaml);
    EXPECT_TRUE(forced.document->root()->isObject());
}

TEST_F(Files, saveWritesWholeOrNothing) {
    const auto document = parseDocument(R"({"b":[1],"a":"x"})", {DocumentFormat::Json, {}});
    saveDocument(*document, path("a.yaml"), SaveOptions{std::nullopt, 4, {}});
    EXPECT_TRUE(loadDocument(path("a.yaml")).document->root()->equals(*document->root()));
    EXPECT_EQ(messageOf([&] { saveDocument(*document, path("a.txt")); }),
              "Unsupported file format: " + path("a.txt"));
    EXPECT_EQ(messageOf([&] { saveDocument(*document, path("no/a.json")); }),
              "Failed to open file: " + path("no/a.json"));

    const std::string kept = write("kept.json", "kept");
    const auto deep =
        parseDocument(std::string(200, '[') + std::string(200, ']'), {DocumentFormat::Json, {}});
    EXPECT_EQ(messageOf([&] { saveDocument(*deep, kept); }), "MaxDepthExceeded");
    EXPECT_EQ(std::filesystem::file_size(kept), 4u);

    if (std::filesystem::exists("/dev/full")) {
        std::filesystem::create_symlink("/dev/full", path("full.json"));
        EXPECT_EQ(messageOf([&] { saveDocument(*document, path("full.json")); }),
                  "Failed to write file: " + path("full.json"));
    }
    std::ostringstream stream;
    writeDocument(*document, stream, SaveOptions{DocumentFormat::Json, 0, {}});
    EXPECT_EQ(stream.str(), R"({"b":[1],"a":"x"})");
    EXPECT_EQ(documentToText(*document, DocumentFormat::Yaml), "b:\n- 1\na: x\n");
    EXPECT_EQ(documentToText(JVDocument(), DocumentFormat::Json), "null\n");
    EXPECT_EQ(documentToText(JVDocument(), DocumentFormat::Yaml).substr(0, 5), "null\n");
}

TEST(References, areInlinedByTheLoader) {
    std::vector<std::string> asked;
    const LoadOptions options{
        DocumentFormat::Json, [&](std::string_view reference) -> std::unique_ptr<JVDocument> {
            asked.emplace_back(reference);
            if (reference == "none")
                return nullptr;
            return parseDocument(R"({"from":["$ref",{"$ref":"deeper"}]})", {DocumentFormat::Json, {}});
        }};
    const auto document = parseDocument(
        R"({"a":{"$ref":"one"},"b":[{"$ref":"none"}],"c":{"$ref":"kept","x":1},"d":{"$ref":"two"}})",
        options);
    std::ranges::sort(asked);
    EXPECT_EQ(asked, (std::vector<std::string>{"none", "one", "two"}));
    EXPECT_EQ(documentToText(*document, SaveOptions{DocumentFormat::Json, 0, {}}),
              R"({"a":{"from":["$ref",{"$ref":"deeper"}]},"b":[{"$ref":"none"}],"c":{"$ref":"kept","x":1},)"
              R"("d":{"from":["$ref",{"$ref":"deeper"}]}})");
    EXPECT_EQ(document->lookup("/a")->pos(), (Pos{1, 6}));
    EXPECT_EQ(document->lookup("/a")->get("from")->pointer(), "");
    EXPECT_EQ(messageOf([&] { static_cast<void>(parseDocument(R"([{"$ref":1}])", options)); }),
              "A string value is expected for '$ref'.");
    EXPECT_EQ(messageOf([] {
                  static_cast<void>(parseDocument(R"([{"$ref":1}])", {DocumentFormat::Json, {}}));
              }),
              "");
}

} // namespace
} // namespace specloom::jv
