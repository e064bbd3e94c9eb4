#include <cstdint>    // std::uintmax_t
#include <filesystem> // std::filesystem
#include <functional> // std::function
#include <string>     // std::string
#include <vector>     // std::vector

#include <gtest/gtest.h>
#include <sys/stat.h> // mkfifo, stat

#include "workspace.h"

namespace fs = std::filesystem;

namespace specloom::tests {
namespace {

constexpr const char* telemetryName = ".specloom.telemetry";

void expectSilentSuccess(const Outcome& outcome) {
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "");
}

// ---- what stands where telemetry goes

TEST(HostileFolder, TelemetryTouchesNothingButItsOwnFile) {
    struct Row {
        const char* what;
        std::function<void(const Workspace&)> plant;
    };
    const std::vector<Row> rows = {
        {"a link to a file", [](auto& w) { fs::create_symlink("precious", w.path(telemetryName)); }},
        {"a link to a file that is missing",
         [](auto& w) { fs::create_symlink("new", w.path(telemetryName)); }},
        {"a second name of a file",
         [](auto& w) { fs::create_hard_link(w.path("precious"), w.path(telemetryName)); }},
        {"a pipe", [](auto& w) { ASSERT_EQ(mkfifo(w.path(telemetryName).c_str(), 0600), 0); }},
        {"a folder", [](auto& w) { fs::create_directory(w.path(telemetryName)); }},
        {"a device", [](auto& w) { fs::create_symlink("/dev/full", w.path(telemetryName)); }},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const Workspace workspace;
        workspace.write("precious", "precious");
        row.plant(workspace);
        // A run that waits for somebody to read the pipe is ended, with status 124.
        expectSilentSuccess(workspace.runScript("exec timeout 60 \"$@\"", {"server"}));
        EXPECT_EQ(workspace.runScript("exec timeout 60 \"$@\"", {"--help"}).status, 0);
        EXPECT_EQ(workspace.read("precious"), "precious");
        EXPECT_FALSE(fs::exists(workspace.path("new")));
    }
}

TEST(HostileFolder, AFolderWithoutPermissionHasNoTelemetry) {
    const Workspace workspace;
    fs::permissions(workspace.path(""), fs::perms::owner_read | fs::perms::owner_exec);
    expectSilentSuccess(workspace.runScript(execAsPlainUser(), {"server"}));
    EXPECT_FALSE(fs::exists(workspace.path(telemetryName)));
    fs::permissions(workspace.path(""), fs::perms::owner_all);
}

TEST(HostileFolder, TelemetryIsItsOwnersAlone) {
    const Workspace workspace;
    expectSilentSuccess(workspace.runScript("umask 0; exec \"$@\"", {"server"}));
    EXPECT_EQ(fs::status(workspace.path(telemetryName)).permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

// ---- what stands where a document is read

TEST(HostileFolder, ADocumentIsAFileOrAPipe) {
    const Workspace workspace;
    workspace.write("api.json", smallDocument);
    fs::create_symlink("/dev/zero", workspace.path("endless.json"));
    fs::create_symlink("/dev/zero", workspace.path("endless.yaml"));
    workspace.write("huge.json", "");
    fs::resize_file(workspace.path("huge.json"), (std::uintmax_t{1} << 30) + 1);
    fs::create_symlink("/dev/stdin", workspace.path("input.json"));
    workspace.write("words.yaml", "{version: '1.0', commands: {lint: {extends: [], rules: {spell-check: "
                                  "[error, {word_files: [endless.json]}]}}}}");
    struct Row {
        const char* script;
        std::vector<std::string> arguments;
        int status;
        const char* out;
    };
    const std::vector<Row> rows = {
        {"exec \"$@\"", {"format", "endless.json"}, 1, "Neither a file nor a pipe: endless.json\n"},
        {"exec \"$@\"", {"format", "endless.yaml"}, 1, "Neither a file nor a pipe: endless.yaml\n"},
        {"exec \"$@\"",
         {"lint", "--config", "endless.yaml", "api.json"},
         1,
         "Neither a file nor a pipe: endless.yaml\n"},
        {"exec \"$@\"",
         {"lint", "--config", "words.yaml", "api.json"},
         1,
         "Cannot load rule: Word file cannot be read: endless.json\n"
         "Word file cannot be read: endless.json\n"},
        {"exec \"$@\"", {"format", "huge.json"}, 1, "Longer than 1073741824 bytes: huge.json\n"},
        {"cat api.json | \"$@\"", {"format", "--output", "a.json", "input.json"}, 0, ""},
        {"exec \"$@\" <api.json", {"format", "--output", "b.json", "input.json"}, 0, ""},
        {"mkfifo pipe.json; cat api.json >pipe.json & \"$@\"",
         {"format", "--output", "c.json", "pipe.json"},
         0,
         ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.arguments));
        const Outcome outcome = workspace.runScript(row.script, row.arguments);
        EXPECT_EQ(outcome.status, row.status);
        EXPECT_EQ(outcome.out, row.out);
        EXPECT_EQ(outcome.err, "");
    }
    for (const char* name : {"a.json", "b.json", "c.json"})
        EXPECT_EQ(workspace.read(name), smallDocumentFormatted) << name;
}

} // namespace
} // namespace specloom::tests
