#include <filesystem> // std::filesystem
#include <sstream>    // std::istringstream
#include <string>     // std::string, std::getline
#include <vector>     // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "workspace.h"

namespace fs = std::filesystem;

namespace specloom::tests {
namespace {

constexpr const char* file = ".specloom.telemetry";

/// The names of the spans in the file that the last run left.
std::vector<std::string> spanNames(const Workspace& workspace) {
    std::vector<std::string> names;
    std::istringstream stream(workspace.read(file));
    const std::string prefix = "  name          : ";
    for (std::string line; std::getline(stream, line);) {
        if (line.starts_with(prefix))
            names.push_back(line.substr(prefix.size()));
    }
    return names;
}

TEST(TelemetryFile, HoldsTheLastRun) {
    struct Row {
        std::vector<std::string> arguments;
        std::vector<std::string> spans;
    };
    const std::vector<Row> rows = {
        {{"server"}, {"cli_command_server"}},
        {{"server"}, {"cli_command_server"}}, // not twice
        {{"credits"}, {}},
        {{"format", "api.yaml"}, {"cli_command_format"}},
        {{"lint", "tides.yaml"}, {"read", "check", "format", "process", "cli_command_lint"}},
        {{"lint", "--fix", "tides.yaml"},
         {"read", "autoFix", "check", "format", "process", "cli_command_lint"}},
        {{"lint", "missing.yaml"}, {"read", "cli_command_lint"}},
        {{"license", "--list"}, {}},
        {{"format", "missing.yaml"}, {"cli_command_format"}}, // an exception ends the span
        {{"--help"}, {}},
        {{"server"}, {"cli_command_server"}},
        {{"nosuchcommand"}, {}},
    };
    const Workspace workspace;
    workspace.write("api.yaml", "openapi: 3.1.0\n");
    workspace.write("tides.yaml", "{openapi: 3.1.0, info: {title: Tides, version: 1.0.0}, paths: {}}");
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.arguments));
        static_cast<void>(workspace.run(row.arguments));
        EXPECT_EQ(spanNames(workspace), row.spans);
    }
}

TEST(TelemetryFile, AFileThatCannotBeWrittenChangesNothing) {
    // A folder of that name: it holds for the superuser too, whom permissions do not stop.
    const Workspace workspace;
    fs::create_directory(workspace.path(file));
    workspace.write("api.json", "{\"openapi\":\"3.1.0\"}");
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"server"}, {"format", "api.json"}}) {
        const Outcome outcome = workspace.run(arguments);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.err, "");
    }
    EXPECT_EQ(workspace.read("api.json"), "{\n  \"openapi\": \"3.1.0\"\n}\n");
}

} // namespace
} // namespace specloom::tests
