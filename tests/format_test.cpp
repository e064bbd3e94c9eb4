#include <filesystem> // std::filesystem
#include <fstream>    // std::ifstream
#include <iterator>   // std::istreambuf_iterator
#include <map>        // std::map
#include <string>     // std::string
#include <vector>     // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h> // geteuid

#include "workspace.h"

namespace fs = std::filesystem;

namespace specloom::tests {
namespace {

using Files = std::map<std::string, std::string>;

/// One run of `specloom format` in a folder with some files.
struct Case {
    std::string what;
    Files before;
    std::vector<std::string> arguments; // behind "format"
    int status;
    std::string out;
    Files after; // of the files named here; the others must be as before
};

void check(const Case& row) {
    SCOPED_TRACE(row.what);
    const Workspace workspace;
    for (const auto& [name, content] : row.before) {
        if (name.ends_with('/'))
            fs::create_directories(workspace.path(name));
        else
            workspace.write(name, content);
    }
    std::vector<std::string> arguments = {"format"};
    arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
    const Outcome outcome = workspace.run(arguments);
    EXPECT_EQ(outcome.status, row.status);
    EXPECT_EQ(outcome.out, row.out);
    EXPECT_EQ(outcome.err, "");

    Files expected = row.after;
    expected.insert(row.before.begin(), row.before.end()); // does not replace
    expected.emplace(".specloom.telemetry", "");
    for (const fs::directory_entry& entry : fs::directory_iterator(workspace.path("")))
        EXPECT_TRUE(expected.contains(entry.path().filename().string() + (entry.is_directory() ? "/" : "")))
            << "left behind: " << entry.path();
    expected.erase(".specloom.telemetry");
    for (const auto& [name, content] : expected) {
        if (!name.ends_with('/')) {
            EXPECT_EQ(workspace.read(name), content) << name;
        }
    }
}

const std::string json = "{\"info\":{\"version\":\"1\",\"title\":\"T\"},\"openapi\":\"3.1.0\"}";
const std::string formattedJson = "{\n"
                                  "  \"openapi\": \"3.1.0\",\n"
                                  "  \"info\": {\n"
                                  "    \"title\": \"T\",\n"
                                  "    \"version\": \"1\"\n"
                                  "  }\n"
                                  "}\n";
const std::string yaml = "info: {version: '1', title: T}\nopenapi: 3.1.0 # comment\n";
const std::string formattedYaml = "openapi: 3.1.0\n"
                                  "info:\n"
                                  "  title: T\n"
                                  "  version: \"1\"\n";

std::string config(const std::string& section) {
    return "{\"version\": \"1.0\", \"commands\": {\"format\": " + section + "}}";
}

TEST(Format, WritesWhereItIsTold) {
    const std::string toJson = config(R"({"extends": "recommended", "openapi": {"format": "json"}})");
    const std::vector<Case> cases = {
        {"in place", {{"a.json", json}}, {"a.json"}, 0, "", {{"a.json", formattedJson}}},
        {"a second run changes nothing", {{"a.yaml", formattedYaml}}, {"a.yaml"}, 0, "", {}},
        {"several files, each in its own format",
         {{"a.json", json}, {"b.YML", yaml}},
         {"a.json", "b.YML"},
         0,
         "",
         {{"a.json", formattedJson}, {"b.YML", formattedYaml}}},
        {"another format goes beside the source",
         {{"a.b.yml", yaml}, {"c.json", json}, {"config.json", toJson}},
         {"--config", "config.json", "a.b.yml", "c.json"},
         0,
         "",
         {{"a.b.json", formattedJson}, {"c.json", formattedJson}}},
        {"the extension of --output decides",
         {{"a.json", json}, {"config.json", toJson}},
         {"a.json", "--config=config.json", "--output", "out.yaml"},
         0,
         "",
         {{"out.yaml", formattedYaml}}},
        {"--output replaces what is there, the longer too",
         {{"a.json", json}, {"out.json", std::string(5000, '#')}},
         {"--output", "out.json", "a.json"},
         0,
         "",
         {{"out.json", formattedJson}}},
        {"the output may be the source",
         {{"a.json", json}},
         {"a.json", "--output", "a.json"},
         0,
         "",
         {{"a.json", formattedJson}}},
        {"a name that is not ASCII",
         {{"gr\xc3\xbc\xc3\x9f"
           "e \xe2\x82\xac.json",
           json}},
         {"gr\xc3\xbc\xc3\x9f"
          "e \xe2\x82\xac.json"},
         0,
         "",
         {{"gr\xc3\xbc\xc3\x9f"
           "e \xe2\x82\xac.json",
           formattedJson}}},
    };
    for (const Case& row : cases)
        check(row);
}

/// The first ```yaml block of `text` at or behind `from`, which moves behind it.
std::string yamlBlock(const std::string& text, std::size_t& from) {
    const std::string opening = "```yaml\n";
    const std::size_t begin = text.find(opening, from) + opening.size();
    from = text.find("```", begin);
    return text.substr(begin, from - begin);
}

TEST(Format, DoesWhatItsDocumentationShows) {
    std::ifstream stream(fs::path(SPECLOOM_SOURCE_DIR) / "docs" / "commands.md");
    const std::string page(std::istreambuf_iterator<char>(stream), {});
    std::size_t place = page.find("For instance, this document");
    ASSERT_NE(place, std::string::npos);
    const std::string before = yamlBlock(page, place);
    const std::string after = yamlBlock(page, place);
    check({"the example", {{"api.yaml", before}}, {"api.yaml"}, 0, "", {{"api.yaml", after}}});
}

TEST(Format, ObeysItsConfiguration) {
    const std::string original =
        "{\n    \"info\": {\n        \"version\": \"1\",\n        \"title\": \"T\"\n    },\n"
        "    \"openapi\": \"3.1.0\"\n}\n";
    const std::string versionFirst = "openapi: 3.1.0\ninfo:\n  version: \"1\"\n  title: T\n";
    const std::vector<Case> cases = {
        {"without a section the recommended configuration holds",
         {{"a.json", json}, {"c.yaml", "version: \"1.0\"\nopenapi:\n  custom_formats: 1\n"}},
         {"--config", "c.yaml", "a.json"},
         0,
         "",
         {{"a.json", formattedJson}}},
        {"original order, another indentation",
         {{"a.json", json}, {"c.json", config(R"({"extends": "original", "openapi": {"indent": 4}})")}},
         {"--config", "c.json", "a.json"},
         0,
         "",
         {{"a.json", original}}},
        {"own keys are laid over the recommended ones",
         {{"a.yaml", yaml},
          {"c.yaml", "version: \"1.0\"\ncommands:\n  format:\n    extends: recommended\n    openapi:\n"
                     "      property_order:\n        info: [version]\n"}},
         {"--config", "c.yaml", "a.yaml"},
         0,
         "",
         {{"a.yaml", versionFirst}}},
    };
    for (const Case& row : cases)
        check(row);
}

TEST(Format, ABrokenConfigurationIsOneLineAndTouchesNothing) {
    struct Row {
        std::string content;
        std::string line;
    };
    const std::vector<Row> rows = {
        {"{", "JSON parse error"},
        {"{}", "Missing configuration version."},
        {R"({"version": 1.0})", "Missing configuration version."},
        {R"({"version": "2.0"})", "Unsupported configuration version: '2.0'."},
        {config("1"), "An object is expected for 'format'"},
        {config(R"({"extends": 1})"), "Extends must be a string"},
        {config(R"({"extends": "strict"})"), "Unknown extends value: strict"},
        {config(R"({"openapi": {"format": "xml"}})"), "Unknown file format: xml"},
        {config(R"({"openapi": []})"), "An object value is expected for 'openapi'."},
        {config(R"({"openapi": {"format": 1}})"), "A string value is expected for 'format'."},
        {config(R"({"openapi": {"indent": 1.5}})"), "An integer value is expected for 'indent'."},
        {config(R"({"openapi": {"indent": -1}})"), "Indent must be between 0 and 100"},
        {config(R"({"openapi": {"property_order": {"infos": "sorted"}}})"), "Unknown object kind: infos"},
        {config(R"({"openapi": {"property_order": []}})"),
         "An object value is expected for 'property_order'."},
        {config(R"({"openapi": {"property_order": {"default": 1}}})"), "Default order must be a string"},
        {config(R"({"openapi": {"property_order": {"default": "fixed"}}})"),
         "Unsupported order shortcut: fixed"},
        {config(R"({"openapi": {"property_order": {"info": "up"}}})"), "Unsupported order shortcut: up"},
        {config(R"({"openapi": {"property_order": {"info": [1]}}})"), "Element is not a string"},
        {config(R"({"openapi": {"property_order": {"info": 1}}})"),
         "Property order block must be a string or an array"},
    };
    for (const Row& row : rows)
        check({row.content,
               {{"a.json", json}, {"c.json", row.content}},
               {"--config", "c.json", "a.json"},
               1,
               row.line + "\n",
               {}});
}

TEST(Format, BadUseIsOneLineAndTouchesNothing) {
    std::string deep = "{\"openapi\": \"3.1.0\", \"x-a\": ";
    deep += std::string(200, '[') + std::string(200, ']') + "}";
    const std::vector<Case> cases = {
        {"a missing file", {}, {"a.json"}, 1, "Cannot open file: a.json\n", {}},
        {"a folder in place of a file", {{"a.json/", ""}}, {"a.json"}, 1, "Cannot open file: a.json\n", {}},
        {"no extension", {{"api", json}}, {"api"}, 1, "Unsupported file format: api\n", {}},
        {"an unknown extension", {{"a.txt", json}}, {"a.txt"}, 1, "Unsupported file format: a.txt\n", {}},
        {"broken JSON", {{"a.json", "{\"a\":1,}"}}, {"a.json"}, 1, "JSON parse error\n", {}},
        {"an empty file", {{"a.json", ""}}, {"a.json"}, 1, "JSON parse error\n", {}},
        {"broken YAML", {{"a.yaml", "a: ["}}, {"a.yaml"}, 1, "Failed to parse YAML\n", {}},
        {"a lone scalar", {{"a.yaml", "a"}}, {"a.yaml"}, 1, "Failed to parse YAML\n", {}},
        {"the second file fails, the first is done",
         {{"a.json", json}, {"b.json", "{"}, {"c.json", json}},
         {"a.json", "b.json", "c.json"},
         1,
         "JSON parse error\n",
         {{"a.json", formattedJson}}},
        {"a missing configuration",
         {{"a.json", json}},
         {"--config", "c.yaml", "a.json"},
         1,
         "Cannot open file: c.yaml\n",
         {}},
        {"a configuration of an unknown format",
         {{"a.json", json}, {"c.toml", ""}},
         {"--config", "c.toml", "a.json"},
         1,
         "Unsupported file format: c.toml\n",
         {}},
        {"two files for one output",
         {{"a.json", json}, {"b.json", json}},
         {"a.json", "b.json", "--output", "c.json"},
         1,
         "Only one input file is allowed when using --output.\n",
         {}},
        {"an unknown output format is told after the file was created",
         {{"a.json", json}},
         {"a.json", "--output", "c.txt"},
         1,
         "Unknown file format: c.txt\n",
         {{"c.txt", ""}}},
        {"an unknown output format spares a file that exists",
         {{"a.json", json}, {"c.txt", "precious"}},
         {"a.json", "--output", "c.txt"},
         1,
         "Unknown file format: c.txt\n",
         {}},
        {"a source that fails creates no output",
         {{"a.json", "{"}},
         {"a.json", "--output", "c.json"},
         1,
         "JSON parse error\n",
         {}},
        {"an output in a missing folder",
         {{"a.json", json}},
         {"a.json", "--output", "out/a.json"},
         1,
         "Failed to open file for writing: out/a.json\n",
         {}},
        {"a folder as output",
         {{"a.json", json}, {"out.json/", ""}},
         {"a.json", "--output", "out.json"},
         1,
         "Failed to open file for writing: out.json\n",
         {}},
        {"a folder where the other format goes",
         {{"a.json", json}, {"a.yaml/", ""}, {"c.json", config(R"({"openapi": {"format": "yaml"}})")}},
         {"--config", "c.json", "a.json"},
         1,
         "Failed to open file for writing: a.yaml\n",
         {}},
        {"too deep for JSON, in place", {{"a.json", deep}}, {"a.json"}, 1, "MaxDepthExceeded\n", {}},
        {"too deep for JSON, with --output",
         {{"a.json", deep}, {"b.json", "precious"}},
         {"a.json", "--output", "b.json"},
         1,
         "MaxDepthExceeded\n",
         {}},
    };
    for (const Case& row : cases)
        check(row);
}

TEST(Format, AFileWithoutPermissionIsOneLine) {
    if (geteuid() == 0)
        GTEST_SKIP() << "the superuser may read and write everything";
    const Workspace workspace;
    workspace.write("secret.json", json);
    workspace.write("fixed.json", json);
    fs::permissions(workspace.path("secret.json"), fs::perms::none);
    fs::permissions(workspace.path("fixed.json"), fs::perms::owner_read);
    const Outcome unreadable = workspace.run({"format", "secret.json"});
    EXPECT_EQ(unreadable.status, 1);
    EXPECT_EQ(unreadable.out, "Cannot open file: secret.json\n");
    const Outcome readOnly = workspace.run({"format", "fixed.json"});
    EXPECT_EQ(readOnly.status, 1);
    EXPECT_EQ(readOnly.out, "Failed to open file for writing: fixed.json\n");
    EXPECT_EQ(workspace.read("fixed.json"), json);
}

TEST(Format, AReadOnlyFileSystemIsOneLine) {
    // Not even the superuser makes files in there.
    const Workspace workspace;
    workspace.write("a.json", json);
    const Outcome outcome = workspace.run({"format", "a.json", "--output", "/proc/specloom.json"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "Failed to open file for writing: /proc/specloom.json\n");
}

TEST(Format, AFullDiskIsOneLine) {
    const Workspace workspace;
    workspace.write("a.json", json);
    fs::create_symlink("/dev/full", workspace.path("full.json"));
    const Outcome outcome = workspace.run({"format", "a.json", "--output", "full.json"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "Failed to write file: full.json\n");
}

TEST(Format, ALongNumberEndsTheProcessBeforeTheFileIsTouched) {
    const Workspace workspace;
    const std::string big = "{\"openapi\":\"3.1.0\",\"x-n\":123456789012345678901}";
    workspace.write("a.json", big);
    const Outcome toJson = workspace.run({"format", "a.json"});
    EXPECT_EQ(toJson.status, 128 + 6); // SIGABRT
    EXPECT_THAT(toJson.err, testing::StartsWith("Unreachable code"));
    EXPECT_EQ(workspace.read("a.json"), big);

    const Outcome toYaml = workspace.run({"format", "a.json", "--output", "a.yaml"});
    EXPECT_EQ(toYaml.status, 0);
    EXPECT_EQ(workspace.read("a.yaml"), "openapi: 3.1.0\nx-n: 123456789012345678901\n");
}

TEST(Format, ALinkStaysALink) {
    const Workspace workspace;
    workspace.write("real.json", json);
    fs::create_symlink("real.json", workspace.path("link.json"));
    EXPECT_EQ(workspace.run({"format", "link.json"}).status, 0);
    EXPECT_TRUE(fs::is_symlink(workspace.path("link.json")));
    EXPECT_EQ(workspace.read("real.json"), formattedJson);
}

} // namespace
} // namespace specloom::tests
