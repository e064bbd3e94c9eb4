// `specloom generate`: each command of its tree, as a user runs it, and the page of the manual about it.

#include "manual.h"
#include "test_support/corpora.h"
#include "workspace.h"

#include <algorithm>  // std::ranges::replace
#include <csignal>    // SIGABRT
#include <filesystem> // std::filesystem
#include <iterator>   // std::istream_iterator
#include <sstream>    // std::istringstream
#include <string>     // std::string
#include <utility>    // std::pair
#include <vector>     // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::tests {
namespace {

using testing::HasSubstr;
using testing::Not;

const std::string documentOfLeaves =
    "openapi: 3.1.0\ninfo: {title: Tides, version: 1.0.0}\ntags: [{name: tides}]\npaths:\n"
    "  /tides: {get: {operationId: listTides, tags: [tides], responses: {}}}\n"
    "components: {schemas: {Tide: {type: object}}}\nservers: [{url: https://tides.example}]\n";

struct LeafRow {
    std::string words; ///< behind "generate"
    std::string description;
    std::string options; ///< besides --help, --version and --output
    std::string line;    ///< that it prints; "files" where it makes some, "issues" where it asks for a
                         ///< configuration
};

constexpr const char* leafTable =
    R"(data|Generate data from an OpenAPI file.|--config --pointer --mime-type --number|files
doc html|Generate HTML documentation from an OpenAPI file.|--config --i18n --package-name --package-version|files
doc markdown|Generate Markdown documentation from an OpenAPI file.||Running DocMarkdownPlugin
client cpp|Generate a C++ client using the fetch API.||Running ClientCPPPlugin
client fetch|Generate a TypeScript client using the fetch API.|--config|files
client python|Generate a Python client.||Running ClientPythonPluin
client swift|Generate a Swift client.||Running ClientSwiftPlugin
client kotlin|Generate a Kotlin client.||Running ClientKotlinPlugin
client elixir|Generate an Elixir client.||Running ClientElixirPlugin
client rust|Generate a Rust client.||Running ClientRustPlugin
mock miragejs|Generate a mock server based on Mirage.js.||Running MockMirageJS plugin
mock msw|Generate a mock server based on MSW.||Running MockMSW plugin
server cpp|Generate a C++ server.||Running ServerCPPPlugin
server nestjs|Generate a NestJS server.|--config|files
server express|Generate an Express server.|--config --package-name --package-version|files
server fastapi|Generate a FastAPI server.||Running ServerFastAPIPlugin
server fastify|Generate a Fastify server.|--config|Running ServerFastifyPlugin
server csharp|Generate a C# server.||Running ServerCSharpPlugin
server spring|Generate a Java Spring server.|--config --package-name --package-version|issues
server elixir|Generate an Elixir server.||Running ServerElixirPlugin
server rust|Generate a Rust server.||Running ServerRustPlugin
server rails|Generate a Rails server.||Running ServerRailsPlugin
server go|Generate a Go server.||Running ServerGoPlugin
server php|Generate a PHP server.||Running ServerPHPPlugin
)";

std::vector<LeafRow> leafRows() {
    std::vector<LeafRow> rows;
    std::istringstream lines(leafTable);
    for (LeafRow row; std::getline(lines, row.words, '|') && std::getline(lines, row.description, '|') &&
                      std::getline(lines, row.options, '|') && std::getline(lines, row.line);)
        rows.push_back(row);
    return rows;
}

std::vector<std::string> wordsOf(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

/// The options of a help text: "  -o, --output OUTPUT        Path to the output directory.", with the rest of
/// the line behind the first blank after the name.
std::vector<std::string> longOptionsOf(const std::string& help) {
    std::vector<std::string> result;
    std::istringstream lines(help);
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with("  -")) {
            const std::size_t begin = line.find("--");
            result.push_back(line.substr(begin, line.find(' ', begin) - begin));
        }
    return result;
}

class GenerateLeaves : public testing::Test {
  protected:
    GenerateLeaves() { workspace.write("api.yaml", documentOfLeaves); }

    [[nodiscard]] Outcome run(const LeafRow& row, std::vector<std::string> arguments) const {
        std::vector<std::string> words = {"generate"};
        for (const std::string& word : wordsOf(row.words))
            words.push_back(word);
        words.insert(words.end(), arguments.begin(), arguments.end());
        Outcome outcome = workspace.run(words);
        EXPECT_EQ(outcome.err, "");
        return outcome;
    }

    /// The arguments, with those that the leaf needs besides; its output is a file in the folder.
    static std::vector<std::string> with(const LeafRow& row, std::vector<std::string> arguments) {
        if (row.words != "data")
            return arguments;
        std::ranges::replace(arguments, "out", "out/values.json");
        arguments.insert(arguments.end(), {"--pointer", "/components/schemas/Tide"});
        return arguments;
    }

    const Workspace workspace;
};

TEST_F(GenerateLeaves, makeFilesOrPrintTheirLine) {
    EXPECT_EQ(leafRows().size(), 24U);
    for (const LeafRow& row : leafRows()) {
        SCOPED_TRACE(row.words);
        const Outcome outcome = run(row, with(row, {"api.yaml", "-o", "out"}));
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(std::filesystem::remove_all(workspace.path("out")) > 0, row.line == "files");
        if (row.line == "issues")
            EXPECT_THAT(outcome.out, HasSubstr("could not be named\n"));
        else
            EXPECT_EQ(outcome.out, row.line == "files" ? "" : row.line + "\n");
    }
}

TEST_F(GenerateLeaves, sayWhatIsMissing) {
    workspace.write("cut.json", "{");
    for (const LeafRow& row : leafRows()) {
        SCOPED_TRACE(row.words);
        const std::pair<std::vector<std::string>, std::string> cases[] = {
            {with(row, {"api.yaml"}), "No value provided for '--output'.\n"},
            {with(row, {"-o", "out"}), "file: 1 argument(s) expected. 0 provided.\n"},
            {with(row, {"missing.yaml", "-o", "out"}), "Cannot open file: missing.yaml\n"},
            {with(row, {"cut.json", "-o", "out"}), "JSON parse error\n"},
        };
        for (const auto& [arguments, text] : cases) {
            const Outcome outcome = run(row, arguments);
            EXPECT_EQ(outcome.out, text);
            EXPECT_EQ(outcome.status, 1);
        }
    }
}

TEST_F(GenerateLeaves, readTheConfigurationWhereTheyHaveOne) {
    workspace.write("old.yaml", "version: '0.1'\n");
    for (const LeafRow& row : leafRows()) {
        SCOPED_TRACE(row.words);
        if (row.options.empty())
            continue;
        const bool isRead =
            row.words != "client fetch" && row.words != "server nestjs" && row.words != "server fastify";
        const Outcome broken = run(row, with(row, {"api.yaml", "-o", "out", "-c", "missing.yaml"}));
        EXPECT_EQ(broken.out.starts_with("Error reading configuration file: "), isRead) << broken.out;
        // Versions are not looked at.
        EXPECT_THAT(run(row, with(row, {"api.yaml", "-o", "out", "-c", "old.yaml"})).out,
                    Not(HasSubstr("configuration")));
    }
}

TEST_F(GenerateLeaves, haveTheirHelp) {
    for (const LeafRow& row : leafRows()) {
        SCOPED_TRACE(row.words);
        const Outcome outcome = run(row, {"--help"});
        EXPECT_EQ(outcome.status, 0);
        EXPECT_THAT(outcome.out, HasSubstr("\n" + row.description + "\n"));
        EXPECT_THAT(outcome.out, HasSubstr("INPUT"));
        EXPECT_EQ(longOptionsOf(outcome.out), wordsOf("--help --version --output " + row.options));
    }
}

TEST(Generate, withoutALeafIsUnreachable) {
    const Workspace workspace;
    for (const char* words : {"", "doc", "client", "mock", "server"}) {
        SCOPED_TRACE(words);
        const Outcome outcome =
            workspace.runScript(std::string("ulimit -c 0; exec \"$@\" ") + words, {"generate"});
        EXPECT_EQ(outcome.status, 128 + SIGABRT);
        EXPECT_EQ(outcome.out, "");
        EXPECT_THAT(outcome.err,
                    testing::ContainsRegex("^Unreachable code at .*generate_command\\.cpp:[0-9]+\n"));
    }
}

/// What a session cannot show, because it takes a user of certain rights.
TEST(Generate, namesTheFileThatCannotBeWrittenAndEndsThere) {
    const std::string listing = "; echo \"=> $?\"; find out -type f -printf \"%p %s\\n\" | sort";
    const std::string fullDisk =
        "unshare -m sh -c 'mount -t tmpfs -o size=4k none out && { \"$@\"" + listing + "; }' sh \"$@\"";
    const auto readOnly = [&](const std::string& path) {
        return "chmod 555 " + path + "; (" + execAsPlainUser() + ")" + listing + "; chmod 755 " + path;
    };
    const std::pair<std::string, std::string> rows[] = {
        {fullDisk, "Failed to write file: out/src/app.ts\n=> 1\nout/package.json 460\nout/src/app.ts 0\n"},
        {readOnly("out"), "Failed to open file for writing: out/package.json\n=> 1\n"},
        {readOnly("out/src"),
         "Failed to open file for writing: out/src/app.ts\n=> 1\nout/package.json 460\n"},
    };
    for (const auto& [script, expected] : rows) {
        SCOPED_TRACE(script);
        const Workspace workspace;
        workspace.write("api.yaml", documentOfLeaves);
        std::filesystem::create_directories(workspace.path("out/src"));
        const Outcome outcome =
            workspace.runScript(script, {"generate", "server", "express", "api.yaml", "-o", "out"});
        if (script == fullDisk && !outcome.err.empty())
            continue; // no disk can be mounted here
        EXPECT_EQ(outcome.err, "");
        EXPECT_EQ(outcome.out, expected);
    }
}

TEST(Generate, doesWhatTheManualShows) {
    const Workspace workspace;
    workspace.write("api.yaml", documentOfLeaves);
    EXPECT_GT(expectManualShows(workspace, "docs/generating.md"), 0u);
}

TEST(Generate, doesWhatTheManualShowsOfData) {
    const Workspace workspace;
    workspace.write("bookshop.yaml",
                    test_support::fileBytes(SPECLOOM_SOURCE_DIR "/examples/bookshop-3.1.yaml"));
    EXPECT_GT(expectManualShows(workspace, "docs/generating-data.md"), 0u);
}

TEST(Generate, makesTheSpringServerOfTheManual) {
    const Workspace workspace;
    workspace.write("api.yaml", documentOfLeaves);
    std::filesystem::copy(SPECLOOM_SOURCE_DIR "/examples", workspace.path("examples"));
    EXPECT_EQ(expectManualShows(workspace, "docs/generating-spring.md"), 2u);
}

TEST(Generate, makesTheSiteOfTheManual) {
    const Workspace workspace;
    std::filesystem::copy(SPECLOOM_SOURCE_DIR "/examples", workspace.path("examples"));
    EXPECT_GT(expectManualShows(workspace, "docs/generating-documentation.md"), 0u);
}

TEST(Generate, theManualSaysOfEachLeafWhatItIs) {
    const std::string page = test_support::fileBytes(SPECLOOM_SOURCE_DIR "/docs/generating.md");
    for (const LeafRow& row : leafRows()) {
        const bool isBuilt = row.line == "files" || row.line == "issues";
        const std::string state = isBuilt ? "makes " : "named, not built: prints a line |\n";
        EXPECT_THAT(page, HasSubstr("| `" + row.words + "` | " + state));
    }
}

} // namespace
} // namespace specloom::tests
