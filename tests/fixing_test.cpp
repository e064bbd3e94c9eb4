// Repairs of files as a user asks for them, and the page of the manual about them: what the page shows is
// what the program prints. With SPECLOOM_UPDATE_GOLDEN set the page is written anew, for review.

#include "manual.h"
#include "test_support/corpora.h"
#include "workspace.h"

#include <filesystem> // std::filesystem
#include <string>     // std::string
#include <vector>     // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h> // mkfifo, stat

namespace specloom::tests {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::StartsWith;

const std::string configuration =
    "{version: '1.0', commands: {lint: {rules: {paths-well-formed: error, tags-sorted: error, "
    "schema-enum-no-duplicates: error, json-schema-validation: error}}}}";

const std::vector<std::string> fix = {"lint", "--config", "fix.yaml", "--fix", "a.yaml"};

const std::string head = "openapi: 3.1.0\ninfo: {title: Tides, version: 1.0.0}\n";
const std::string unsorted = head + "tags: [{name: tides}, {name: harbours}]\npaths: {}\n";

Workspace& withConfiguration(Workspace& workspace) {
    workspace.write("fix.yaml", configuration);
    return workspace;
}

TEST(Fixing, doesWhatTheManualShows) {
    const Workspace workspace;
    const std::string page = test_support::fileBytes(fs::path(SPECLOOM_SOURCE_DIR) / "docs/fixing.md");
    for (const std::string name : {"tides.yaml", "fix.yaml"}) { // as the page shows them
        const std::size_t begin = page.find("$ cat " + name + "\n") + 7 + name.size();
        workspace.write(name, page.substr(begin, page.find("\n$ ", begin) + 1 - begin));
    }
    EXPECT_EQ(expectManualShows(workspace, "docs/fixing.md"), 1u);
}

TEST(Fixing, leavesFilesWithNothingToMend) {
    Workspace workspace;
    withConfiguration(workspace).write("a.yaml", head + "paths: {}   # none\n");
    fs::last_write_time(workspace.path("a.yaml"), fs::file_time_type{});
    struct stat before {};
    ASSERT_EQ(stat(workspace.path("a.yaml").c_str(), &before), 0);
    EXPECT_EQ(workspace.run(fix).status, 0);
    struct stat after {};
    ASSERT_EQ(stat(workspace.path("a.yaml").c_str(), &after), 0);
    EXPECT_EQ(before.st_ino, after.st_ino);
    EXPECT_EQ(before.st_mtim.tv_sec, after.st_mtim.tv_sec);
    EXPECT_EQ(before.st_ctim.tv_nsec, after.st_ctim.tv_nsec);
}

TEST(Fixing, refusesWhatItWouldLose) {
    struct Row {
        std::string text;
        std::string reason;
    };
    const std::vector<Row> rows = {
        {unsorted + "x: [&a 1,\n *a]\n",
         "it has YAML aliases, the first in line 6, and what they stand for is not read"},
        {unsorted + "x: {a: 1, a: 1}\n", "an object has a key twice, and one of its values is not read"},
    };
    Workspace workspace;
    withConfiguration(workspace);
    for (const Row& row : rows) {
        workspace.write("a.yaml", row.text);
        const Outcome outcome = workspace.run(fix);
        EXPECT_EQ(outcome.out, "Cannot repair a.yaml: " + row.reason + "\n");
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(workspace.read("a.yaml"), row.text);
    }
    // The same without anything to mend.
    workspace.write("a.yaml", head + "paths: {}\nx: [&a 1, *a]\n");
    EXPECT_EQ(workspace.run(fix).status, 0);
    workspace.write("b.yaml", unsorted);
    const std::string pipe = "mkfifo pipe.yaml; cat b.yaml > pipe.yaml & exec \"$@\" pipe.yaml";
    const Outcome outcome = workspace.runScript(pipe, {"lint", "--config", "fix.yaml", "--fix"});
    EXPECT_EQ(outcome.out, "Cannot repair pipe.yaml: it is no regular file\n");
    EXPECT_EQ(outcome.status, 1);
}

/// Writing such a number ends the process.
TEST(Fixing, passesBigNumbersBy) {
    Workspace workspace;
    const std::string text =
        R"({"openapi":"3.1.0","info":{"title":"T","version":"1.0.0"},"tags":[{"name":"b"},{"name":"a"}],)"
        R"("paths":{},"x-n":123456789012345678901234567890,"x-m":1.50E+3})";
    withConfiguration(workspace).write("a.json", text);
    EXPECT_EQ(workspace.run({"lint", "--config", "fix.yaml", "--fix", "a.json"}).status, 0);
    std::string expected = text;
    expected.replace(text.find("[{"), 27, R"([{"name":"a"},{"name":"b"}])");
    EXPECT_EQ(workspace.read("a.json"), expected);
}

TEST(Fixing, checksWhatIsWritten) {
    Workspace workspace;
    withConfiguration(workspace).write("a.yaml", head + "paths:\n\n  ports: {}\n");
    const Outcome outcome = workspace.run(fix);
    EXPECT_THAT(outcome.out, testing::Not(HasSubstr("ports")));
    EXPECT_EQ(workspace.read("a.yaml"), head + "paths:\n\n  /ports: {}\n");
    EXPECT_EQ(workspace.run({"lint", "--config", "fix.yaml", "a.yaml"}).out, outcome.out);
}

/// The report tells places of the file as it is then.
TEST(Fixing, tellsPlacesInTheNewText) {
    for (const std::string name : {"a.yaml", "a.json"}) {
        const Workspace workspace;
        workspace.write("rules.yaml", "{version: '1.0', commands: {lint: {extends: [all]}}}");
        const std::string text =
            "{\"openapi\": \"3.1.0\", \"tags\": [\n{\"name\": \"b\"},\n\n{\"name\": \"a\"}],\n"
            "\"info\": {\"title\": \"T\", \n\"version\": \"1\"}, \"paths\": {\"/A\": {\n"
            "\"parameters\": [], \"get\": {\"responses\": {}}}}}\n";
        workspace.write(name, text);
        const std::string former = workspace.run({"lint", "--config", "rules.yaml", name}).out;
        const std::string fixed = workspace.run({"lint", "--config", "rules.yaml", "--fix", name}).out;
        EXPECT_EQ(workspace.run({"lint", "--config", "rules.yaml", name}).out, fixed);
        EXPECT_NE(fixed, former);
    }
}

TEST(Fixing, triesWithoutWriting) {
    Workspace workspace;
    withConfiguration(workspace).write("a.yaml", unsorted);
    std::vector<std::string> dry = fix;
    dry[3] = "--fix-dry-run";
    const Outcome outcome = workspace.run(dry);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.out, StartsWith("--- a.yaml\n+++ a.yaml\n@@ -1,4 +1,4 @@\n"));
    EXPECT_EQ(workspace.read("a.yaml"), unsorted);
    workspace.write("patch", outcome.out);
    EXPECT_EQ(workspace.runScript("patch -s -p0 < patch", {}).out, "");
    const std::string patched = workspace.read("a.yaml");
    workspace.write("a.yaml", unsorted);
    EXPECT_EQ(workspace.run(fix).status, 0);
    EXPECT_EQ(workspace.read("a.yaml"), patched);
    EXPECT_EQ(workspace.run(dry).out, "");
}

TEST(Fixing, tellsWhatBecameOfPaths) {
    Workspace workspace;
    const std::string text =
        head + "paths:\n"
               "  /Ports/{Id}:\n"
               "    parameters: [{name: Id, in: path, required: true, schema: {}}]\n"
               "  /Tides: {}\n"
               "  /tides: {}\n"
               "  /{A}/{a}: {}\n"
               "  '/Shared/{Name}':\n"
               "    parameters: [{$ref: '#/components/parameters/Name'}]\n"
               "components: {parameters: {Name: {name: Name, in: path, required: true, schema: {}}}}\n";
    withConfiguration(workspace).write("a.yaml", text);
    const Outcome outcome = workspace.run(fix);
    EXPECT_EQ(
        outcome.err,
        "specloom: note: a.yaml: path \"/{A}/{a}\" stays, because two of its parameters would have one "
        "name in \"/{a}/{a}\"\n"
        "specloom: note: a.yaml: path \"/Ports/{Id}\" becomes \"/ports/{id}\"\n"
        "specloom: note: a.yaml: path \"/Shared/{Name}\" becomes \"/shared/{name}\"\n"
        "specloom: note: a.yaml: parameter \"Name\" of path \"/shared/{name}\" is a shared component and "
        "keeps its name\n"
        "specloom: note: a.yaml: path \"/Tides\" stays, because \"/tides\" is taken\n");
    std::string expected = text;
    for (const auto& [before, after] : std::vector<std::pair<std::string, std::string>>{
             {"/Ports/{Id}", "/ports/{id}"}, {"name: Id", "name: id"}, {"/Shared/{Name}", "/shared/{name}"}})
        expected.replace(expected.find(before), before.size(), after);
    EXPECT_EQ(workspace.read("a.yaml"), expected);
    workspace.write("a.yaml", text);
    std::vector<std::string> silent = fix;
    silent.insert(silent.begin() + 1, "--no-notes");
    EXPECT_EQ(workspace.run(silent).err, "");
}

TEST(Fixing, printsTheVersionAlone) {
    const Workspace workspace;
    const std::string old = head + "paths: {/a: {get: {responses: {}}}}\n";
    const std::string now =
        head + "paths: {/a: {get: {responses: {}}, put: {summary: Set, responses: {}}}}\n";
    workspace.write("old.yaml", old);
    workspace.write("new.yaml", now);
    const Outcome added = workspace.run({"diff", "--print-version", "old.yaml", "new.yaml"});
    EXPECT_EQ(added.out, "1.1.0\n");
    EXPECT_EQ(added.status, 0);
    const Outcome removed =
        workspace.run({"diff", "--print-version", "--update-version", "new.yaml", "old.yaml"});
    EXPECT_EQ(removed.out, "2.0.0\n");
    EXPECT_EQ(removed.status, 1);
    EXPECT_EQ(workspace.run({"diff", "--print-version", "old.yaml", "old.yaml"}).out, "1.0.0\n");
    EXPECT_EQ(workspace.read("old.yaml") + workspace.read("new.yaml"), old + now);
}

} // namespace
} // namespace specloom::tests
