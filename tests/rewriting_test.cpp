#include "workspace.h"

#include <cerrno>     // errno, ENOTSUP
#include <filesystem> // std::filesystem
#include <functional> // std::function
#include <string>     // std::string
#include <vector>     // std::vector

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h> // chown, geteuid

namespace fs = std::filesystem;

namespace specloom::tests {
namespace {

const std::string whole = "exec \"$@\"";
// One block of 512 bytes: less than any of the long documents.
const std::string limited = "ulimit -f 1; exec \"$@\"";

struct stat statusOf(const Workspace& workspace, const std::string& name) {
    struct stat status {};
    EXPECT_EQ(lstat(workspace.path(name).c_str(), &status), 0) << name;
    return status;
}

std::size_t filesIn(const Workspace& workspace) {
    const fs::directory_iterator files(workspace.path(""));
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

/// The small document with a long array.
std::string longDocument(bool isFormatted) {
    std::string text =
        isFormatted
            ? "{\n  \"openapi\": \"3.1.0\",\n  \"info\": {\n    \"version\": \"1\"\n  },\n  \"x-a\": [\n    1"
            : R"({"info":{"version":"1"},"openapi":"3.1.0","x-a":[1)";
    for (int count = 0; count < 1000; ++count)
        text += isFormatted ? ",\n    1" : ",1";
    return text + (isFormatted ? "\n  ]\n}\n" : "]}");
}

TEST(Rewriting, putsANewFileInThePlaceOfTheOld) {
    const Workspace workspace;
    workspace.write("real/api.json", smallDocument);
    const fs::path real = workspace.path("real/api.json");
    fs::permissions(real, fs::perms::owner_all | fs::perms::group_read);
    const std::string value = "kept";
    const bool hasAttributes = setxattr(real.c_str(), "user.note", value.data(), value.size(), 0) == 0;
    if (geteuid() == 0) {
        ASSERT_EQ(chown(real.c_str(), 12345, 23456), 0);
    }
    fs::create_symlink("real/api.json", workspace.path("second.json"));
    fs::create_symlink(workspace.path("second.json"), workspace.path("first.json"));
    const struct stat before = statusOf(workspace, "real/api.json");

    EXPECT_EQ(workspace.run({"format", "first.json"}).status, 0);

    const struct stat after = statusOf(workspace, "real/api.json");
    EXPECT_EQ(workspace.read("real/api.json"), smallDocumentFormatted);
    EXPECT_NE(after.st_ino, before.st_ino);
    EXPECT_EQ(after.st_mode, before.st_mode);
    EXPECT_EQ(after.st_uid, before.st_uid);
    EXPECT_EQ(after.st_gid, before.st_gid);
    char found[8] = {};
    if (hasAttributes) {
        EXPECT_EQ(getxattr(real.c_str(), "user.note", found, sizeof found), 4);
        EXPECT_EQ(found, value);
    }
    EXPECT_TRUE(fs::is_symlink(workspace.path("first.json")));
    EXPECT_TRUE(fs::is_symlink(workspace.path("second.json")));
}

TEST(Rewriting, leavesAFileAloneThatIsAsItShouldBe) {
    const Workspace workspace;
    workspace.write("api.json", smallDocumentFormatted);
    workspace.write("old.json", smallDocumentFormatted);
    const auto expectUntouched = [&](const std::vector<std::string>& arguments) {
        const struct stat before = statusOf(workspace, "api.json");
        EXPECT_EQ(workspace.run(arguments).status, 0);
        const struct stat after = statusOf(workspace, "api.json");
        EXPECT_EQ(after.st_ino, before.st_ino);
        EXPECT_EQ(after.st_ctim.tv_sec, before.st_ctim.tv_sec);
        EXPECT_EQ(after.st_ctim.tv_nsec, before.st_ctim.tv_nsec);
    };
    expectUntouched({"format", "api.json"});
    expectUntouched({"format", "--output", "api.json", "old.json"});
}

/// Where no sibling can take the place of a file, the file is written itself, and keeps its content when that
/// fails.
TEST(Rewriting, writesInPlaceWhereItMust) {
    struct Row {
        const char* what;
        std::function<void(const Workspace&)> prepare;
        std::string script;
    };
    const auto nothing = [](const Workspace&) {};
    const std::vector<Row> rows = {
        {"two names", [](auto& w) { fs::create_hard_link(w.path("in/api.json"), w.path("in/twin.json")); },
         whole},
        {"a folder without permission",
         [](auto& w) { fs::permissions(w.path("in"), fs::perms::owner_read | fs::perms::owner_exec); },
         execAsPlainUser()},
        {"the standard output of the run", nothing, "exec \"$@\" >>in/api.json"},
    };
    for (const Row& row : rows) {
        for (const bool fits : {true, false}) {
            SCOPED_TRACE(row.what + std::string(fits ? "" : ", without room"));
            const Workspace workspace;
            workspace.write("in/api.json", longDocument(false));
            row.prepare(workspace);
            const struct stat before = statusOf(workspace, "in/api.json");
            const std::string script = (fits ? "" : "ulimit -f 5; ") + row.script;
            const Outcome outcome = workspace.runScript(script, {"format", "in/api.json"});
            EXPECT_EQ(outcome.status, fits ? 0 : 1);
            EXPECT_EQ(outcome.err, "");
            EXPECT_EQ(statusOf(workspace, "in/api.json").st_ino, before.st_ino);
            std::string content = workspace.read("in/api.json");
            if (const std::size_t message = content.find("Failed to write"); message != std::string::npos)
                content.resize(message); // its standard output
            EXPECT_EQ(content, longDocument(fits));
            fs::permissions(workspace.path("in"), fs::perms::owner_all);
        }
    }
}

TEST(Rewriting, anOwnerThatCannotBeKeptIsKeptByWritingInPlace) {
    if (geteuid() != 0)
        return; // only the superuser can make such a file
    const Workspace workspace;
    workspace.write("api.json", smallDocument);
    ASSERT_EQ(chown(workspace.path("api.json").c_str(), 12345, 23456), 0);
    fs::permissions(workspace.path("api.json"), fs::perms(0666));
    const struct stat before = statusOf(workspace, "api.json");
    EXPECT_EQ(workspace.runScript(execAsPlainUser(), {"format", "api.json"}).status, 0);
    EXPECT_EQ(workspace.read("api.json"), smallDocumentFormatted);
    EXPECT_EQ(statusOf(workspace, "api.json").st_ino, before.st_ino);
    EXPECT_EQ(statusOf(workspace, "api.json").st_uid, before.st_uid);
}

/// Each command that writes files, under a limit of their size. Beyond it the system sends SIGXFSZ.
TEST(Rewriting, aFileThatGrowsBeyondItsLimitStaysAsItWas) {
    const std::string minified = longDocument(false);
    std::string raised = minified;
    raised.replace(raised.find(R"({"v)"), 15, R"({"title":"T","version":"1.0.0"})");
    raised.insert(1, R"("paths":{"/a":{"get":{"responses":{"200":{"description":"d"}}}}},)");
    const std::vector<std::vector<std::string>> commands = {
        {"format", "api.json"},
        {"format", "--output", "api.json", "other.json"},
        {"lint", "--fix", "--config", "config.yaml", "api.json"},
        {"diff", "--update-version", "old.json", "api.json"},
    };
    for (const std::vector<std::string>& command : commands) {
        SCOPED_TRACE(testing::PrintToString(command));
        const Workspace workspace;
        workspace.write("api.json", raised);
        workspace.write("other.json", minified);
        workspace.write("config.yaml", "{version: '1.0', commands: {lint: {rules: {id-defined: error}}}}");
        workspace.write("old.json", "{\"openapi\":\"3.1.0\",\"info\":{\"title\":\"T\",\"version\":\"1.0.0\"},"
                                    "\"paths\":{}}");
        workspace.write(".specloom.telemetry", "");
        const std::size_t count = filesIn(workspace);
        const Outcome outcome = workspace.runScript(limited, command);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(workspace.read("api.json"), raised);
        EXPECT_EQ(filesIn(workspace), count);
        EXPECT_NE(workspace.run(command).out, outcome.out);
        EXPECT_NE(workspace.read("api.json"), raised) << "nothing was to be written";
    }
}

TEST(Rewriting, aFileThatMayNotBeReadOrWrittenIsLeftAlone) {
    const Workspace workspace;
    workspace.write("api.json", smallDocument);
    fs::permissions(workspace.path("api.json"), fs::perms::owner_read);
    const Outcome outcome = workspace.runScript(execAsPlainUser(), {"format", "api.json"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "Failed to open file for writing: api.json\n");
    EXPECT_EQ(workspace.read("api.json"), smallDocument);
    fs::permissions(workspace.path("api.json"), fs::perms::none);
    EXPECT_EQ(workspace.runScript(execAsPlainUser(), {"format", "api.json"}).out,
              "Cannot open file: api.json\n");
}

} // namespace
} // namespace specloom::tests
