// `specloom diff` as a user runs it, and the page of the manual about it: what the page shows is what the
// program prints. With SPECLOOM_UPDATE_GOLDEN set the page is written anew, for review.

#include <cstdlib>    // std::getenv
#include <filesystem> // std::filesystem
#include <fstream>    // std::ifstream, std::ofstream
#include <iterator>   // std::istreambuf_iterator
#include <set>        // std::set
#include <sstream>    // std::istringstream
#include <string>     // std::string, std::getline
#include <vector>     // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "test_support/corpora.h"
#include "test_support/read_tree.h"
#include "test_support/write_back.h"
#include "workspace.h"

namespace specloom::tests {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

std::string versionOfTides(const std::string& version, const std::string& members) {
    return "openapi: 3.1.0\ninfo: {title: Tides, version: " + version + "}\n" + members;
}

const std::string oldPaths = "paths: {/tides: {get: {responses: {}}}}\n";
const std::string newPaths = "paths: {/tides: {get: {responses: {}}, put: {summary: Set, responses: {}}}}\n";

/// One run over a.yaml and b.yaml, which has an operation more, and c.yaml, the configuration.
struct DiffRow {
    std::string what;
    std::string config;
    std::vector<std::string> arguments;
    int status;
    testing::Matcher<std::string> out;
};

TEST(Diff, EndsByWhatChanged) {
    const std::string head = "version: \"1.0\"\ncommands: {diff: ";
    const std::vector<std::string> configured = {"--config", "c.yaml", "a.yaml", "b.yaml"};
    const std::vector<DiffRow> rows = {
        {"an addition",
         "",
         {"a.yaml", "b.yaml"},
         0,
         HasSubstr("non-breaking  2:44  key_added  Added operation put")},
        {"a removal", "", {"b.yaml", "a.yaml"}, 1, HasSubstr("Removed operation put /tides")},
        {"nothing", "", {"a.yaml", "a.yaml"}, 0, ""},
        {"another report",
         "",
         {"--report", "status", "--formatter", "json", "a.yaml", "b.yaml"},
         0,
         "{\"status\":\"non-breaking\"}\n"},
        {"an unknown report",
         "",
         {"--report", "nonsense", "a.yaml", "b.yaml"},
         1,
         "Invalid argument \"nonsense\" - allowed options: {status, changelog, detailed}\n"},
        {"an unknown formatter",
         "",
         {"--formatter", "xml", "a.yaml", "b.yaml"},
         1,
         "Invalid argument \"xml\" - allowed options: {html, json, markdown, stylish, unix, visualstudio}\n"},
        {"one file", "", {"a.yaml"}, 1, "dest_file: 1 argument(s) expected. 0 provided.\n"},
        {"three files",
         "",
         {"a.yaml", "b.yaml", "c.yaml"},
         1,
         StartsWith("Maximum number of positional arguments")},
        {"no such file", "", {"a.yaml", "d.yaml"}, 1, "Cannot open file: d.yaml\n"},
        {"a classification of one's own",
         head + "{extends: [recommended], rules: {pathItem: {operations: breaking}}}}", configured, 1,
         HasSubstr("breaking  2:44  key_added  Added operation put")},
        {"no classification", head + "{rules: {}}}", configured, 0, ""},
        {"no section", "version: \"1.0\"", configured, 0, HasSubstr("Added operation put")},
        {"an unknown ruleset", head + "{extends: [strict]}}", configured, 1, "Unknown ruleset: strict\n"},
        {"an unknown classification", head + "{rules: {info: {title: bad}}}}", configured, 1,
         "Invalid option\n"},
    };
    for (const DiffRow& row : rows) {
        SCOPED_TRACE(row.what);
        const Workspace workspace;
        workspace.write("a.yaml", versionOfTides("1.0.0", oldPaths));
        workspace.write("b.yaml", versionOfTides("1.0.0", newPaths));
        workspace.write("c.yaml", row.config);
        std::vector<std::string> arguments = {"diff"};
        arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
        const Outcome outcome = workspace.run(arguments);
        EXPECT_EQ(outcome.status, row.status);
        EXPECT_THAT(outcome.out, row.out);
        EXPECT_EQ(outcome.err, "");
        EXPECT_EQ(workspace.read("b.yaml"), versionOfTides("1.0.0", newPaths));
    }
}

TEST(Diff, RaisesTheVersion) {
    struct VersionRow {
        std::string before;
        std::string now;
        int status;
        std::string written; // the version that b.yaml has then; empty when it is as it was
    };
    const std::vector<VersionRow> rows = {
        {"1.2.3", "1.2.3", 0, "1.3.0"}, {"1.2.3", "1.3.0", 0, ""},      {"1.2.3", "2.0.0-rc.1", 0, ""},
        {"1.2", "1.2.3", 1, ""},        {"1.2.3", "2026-11-21", 1, ""},
    };
    for (const VersionRow& row : rows) {
        SCOPED_TRACE(row.before + " " + row.now);
        const Workspace workspace;
        const std::string before = versionOfTides("\"" + row.before + "\"", oldPaths);
        const std::string now = versionOfTides("\"" + row.now + "\"", newPaths);
        workspace.write("a.yaml", before);
        workspace.write("b.yaml", now);
        const Outcome outcome = workspace.run({"diff", "--update-version", "a.yaml", "b.yaml"});
        EXPECT_EQ(outcome.status, row.status);
        EXPECT_EQ(outcome.out, row.status == 0
                                   ? "  non-breaking  2:44  key_added  Added operation put /tides\n"
                                   : "semver::version::from_string invalid version.\n");
        EXPECT_EQ(workspace.read("a.yaml"), before);
        EXPECT_EQ(workspace.read("b.yaml"),
                  row.written.empty() ? now
                                      : "openapi: 3.1.0\ninfo:\n  title: Tides\n  version: " + row.written +
                                            "\npaths:\n  /tides:\n    get:\n      responses: {}\n    put:\n"
                                            "      summary: Set\n      responses: {}\n");
    }
}

TEST(Diff, TracesItsStages) {
    const Workspace workspace;
    workspace.write("a.yaml", versionOfTides("1.0.0", oldPaths));
    workspace.write("b.yaml", versionOfTides("1.0.0", newPaths));
    ASSERT_EQ(workspace.run({"diff", "--update-version", "a.yaml", "b.yaml"}).status, 0);
    const std::string trace = workspace.read(".specloom.telemetry");
    std::size_t at = 0;
    for (const char* span : {"read_source", "read_dest", "process", "bump_version", "format", "update_dest",
                             "cli_command_diff"}) { // in the order in which they end
        at = trace.find(std::string("name          : ") + span + '\n', at);
        EXPECT_NE(at, std::string::npos) << span;
    }
}

// ---- the manual

namespace fs = std::filesystem;

std::string textOf(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    EXPECT_TRUE(stream) << path;
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::string> wordsOf(const std::string& command) {
    std::istringstream stream(command);
    std::vector<std::string> words;
    for (std::string word; stream >> word;)
        words.push_back(word);
    return words;
}

/// What a user sees who types the commands of a block, which begin with "$ specloom" or are "$ echo $?".
std::string transcript(const Workspace& workspace, const std::string& block) {
    std::istringstream lines(block);
    std::string shown;
    int status = 0;
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with("$ "))
            continue; // what was shown before
        shown += line + '\n';
        if (line == "$ echo $?") {
            shown += std::to_string(status) + '\n';
        } else if (line.starts_with("$ specloom ")) {
            const Outcome outcome = workspace.run(wordsOf(line.substr(11)));
            status = outcome.status;
            shown += outcome.out;
        } else {
            const std::vector<std::string> words = wordsOf(line); // "$ head -LINES FILE"
            EXPECT_EQ(words.at(1), "head") << line;
            std::istringstream file(workspace.read(words.at(3)));
            std::string text;
            for (int left = std::stoi(words.at(2).substr(1)); left > 0 && std::getline(file, text); --left)
                shown += text + '\n';
        }
    }
    return shown;
}

TEST(Diff, DoesWhatTheManualShows) {
    const bool isUpdating = std::getenv("SPECLOOM_UPDATE_GOLDEN") != nullptr;
    const fs::path root = SPECLOOM_SOURCE_DIR;
    const Workspace workspace;
    for (const char* name :
         {"examples/bookshop-3.1.yaml", "examples/bookshop-next.yaml", "examples/diff.yaml"})
        workspace.write(name, textOf(root / name));
    const std::string additions =
        "openapi: 3.1.0\ninfo:\n  title: Tides\n  version: 1.4.2\npaths:\n  /tides:\n    get:\n"
        "      responses: {\"200\": {description: Tides.}}\n";
    workspace.write("additions-old.yaml", additions);
    workspace.write("additions-new.yaml",
                    additions + "    put:\n      responses: {\"204\": {description: Noted.}}\n");
    std::string page = textOf(root / "docs/diff.md");
    const std::string opening = "\n```console\n";
    std::size_t blocks = 0;
    for (std::size_t at = page.find(opening); at != std::string::npos; at = page.find(opening, at)) {
        const std::size_t begin = at + opening.size();
        const std::size_t end = page.find("```\n", begin);
        ASSERT_NE(end, std::string::npos);
        const std::string block = page.substr(begin, end - begin);
        const std::string shown = transcript(workspace, block);
        if (isUpdating)
            page.replace(begin, end - begin, shown);
        EXPECT_EQ(isUpdating ? shown : block, shown);
        at = begin;
        ++blocks;
    }
    EXPECT_GT(blocks, 5u);
    if (isUpdating)
        std::ofstream(root / "docs/diff.md", std::ios::binary) << page;
}

// ---- the versions of published documents

/// A pair with the version that each document has, and the one that the newer has in the end: its own where
/// nothing is written.
struct VersionPair {
    std::string name;
    std::string extension;
    std::string before;
    std::string now;
    std::string written;
};

const VersionPair versionPairs[] = {
    // raised: there are breaking changes
    {"github-enterprise", ".json", "1.1.4", "1.1.4", "2.0.0"},
    {"meilisearch", ".json", "1.12.0", "1.15.2", "2.0.0"},
    {"spotify", ".yaml", "1.0.0", "1.0.0", "2.0.0"},
    {"twilio-lookups", ".json", "1.55.4", "1.0.0", "2.0.0"},
    // ahead of what non-functional changes ask for
    {"xero-projects", ".yaml", "8.3.0", "16.1.0", "16.1.0"},
    // no semantic versions
    {"adyen-checkout", ".yaml", "70", "71", "71"},
    {"discord", ".json", "10", "10", "10"},
};

/// A configuration that names the formats which a document uses beyond those that are built in.
std::string formatsOf(const std::vector<const test_support::ReadTree*>& trees) {
    std::set<std::string> names;
    for (const test_support::ReadTree* tree : trees)
        names.insert(tree->unknownFormats.begin(), tree->unknownFormats.end());
    std::string config = "version: \"1.0\"\nopenapi:\n  custom_formats:\n    - {name: none, type: string}\n";
    for (const std::string& name : names)
        config += "    - {name: " + name + ", type: string}\n";
    return config;
}

/// That `written` is what `read` was but for its version and what writing back is meant to change.
void expectNothingButTheVersion(const openapi::ReadResult& read, const openapi::ReadResult& written) {
    std::size_t versions = 0;
    for (const auto& difference : test_support::compareWriteBack(read.source(), written.source())) {
        if (difference.pointer == "/info/version")
            ++versions;
        else if (difference.kind == test_support::WriteBackClass::Defect)
            ADD_FAILURE() << difference;
    }
    EXPECT_EQ(versions, 1u);
}

TEST(Diff, RaisesTheVersionsOfRealDocuments) {
    SPECLOOM_NEEDS_CORPORA();
    for (const VersionPair& pair : versionPairs) {
        SCOPED_TRACE(pair.name);
        const fs::path folder = test_support::corporaFolder() / "pairs";
        const fs::path files[] = {folder / (pair.name + "-old" + pair.extension),
                                  folder / (pair.name + "-new" + pair.extension)};
        const test_support::ReadTree before = test_support::readTree(files[0]);
        const test_support::ReadTree now = test_support::readTree(files[1]);
        ASSERT_TRUE(before.result != nullptr && now.result != nullptr);
        EXPECT_EQ(before.result->root().info().version(), pair.before);
        EXPECT_EQ(now.result->root().info().version(), pair.now);

        const Workspace workspace;
        const std::string names[] = {"old" + pair.extension, "new" + pair.extension};
        for (const std::size_t side : {0U, 1U})
            workspace.write(names[side], textOf(files[side]));
        workspace.write("formats.yaml", formatsOf({&before, &now}));
        const fs::file_time_type longAgo{};
        fs::last_write_time(workspace.path(names[1]), longAgo);
        const Outcome outcome = workspace.run({"diff", "--config", "formats.yaml", "--update-version",
                                               "--formatter", "json", names[0], names[1]});

        const bool isSemantic = pair.before.find('.') != std::string::npos;
        EXPECT_EQ(outcome.err, "");
        if (isSemantic)
            EXPECT_THAT(outcome.out, StartsWith("{\"added\":["));
        else
            EXPECT_EQ(outcome.out, "semver::version::from_string invalid version.\n");
        EXPECT_EQ(outcome.status, isSemantic && pair.written == pair.now ? 0 : 1);
        EXPECT_EQ(workspace.read(names[0]), textOf(files[0]));
        if (pair.written == pair.now) {
            EXPECT_EQ(workspace.read(names[1]), textOf(files[1]));
            EXPECT_EQ(fs::last_write_time(workspace.path(names[1])), longAgo);
            continue;
        }
        const std::string text = workspace.read(names[1]);
        EXPECT_THAT(text, StartsWith(pair.extension == ".json" ? "{\n  \"" : "openapi: "));
        const test_support::ReadTree written = test_support::readTree(workspace.path(names[1]));
        ASSERT_NE(written.result, nullptr) << written.refusal;
        EXPECT_EQ(written.result->root().info().version(), pair.written);
        expectNothingButTheVersion(*now.result, *written.result);
    }
}

} // namespace
} // namespace specloom::tests
