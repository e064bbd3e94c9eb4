#include <string> // std::string
#include <vector> // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "workspace.h"

namespace specloom::tests {
namespace {

const std::string document = "{openapi: 3.1.0, info: {title: T, version: 1.0.0}, paths: {}}";

TEST(Process, AClosedStreamIsNobodyElses) {
    const std::vector<std::string> arguments = {"lint", "api.yaml"};
    for (const char* script : {"exec \"$@\" >&-", "exec \"$@\" <&- >&- 2>&-"}) {
        SCOPED_TRACE(script);
        const Workspace workspace;
        workspace.write("api.yaml", document);
        const std::string report = workspace.run(arguments).out;
        ASSERT_THAT(report, testing::HasSubstr("api.yaml"));
        const Outcome outcome = workspace.runScript(script, arguments);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.out, "");
        const std::string spans = workspace.read(".specloom.telemetry");
        EXPECT_THAT(spans, testing::StartsWith("{\n  name          : read"));
        EXPECT_THAT(spans, testing::Not(testing::HasSubstr("api.yaml")));
    }
}

TEST(Process, HelpThatDoesNotGetOutIsAFailure) {
    for (const std::string command : {"", "format", "lint", "diff", "credits", "license", "server"}) {
        for (const std::string option : {"--help", "-h", "--version", "-v"}) {
            SCOPED_TRACE(command + " " + option);
            std::vector<std::string> arguments = {command, option};
            if (command.empty())
                arguments.erase(arguments.begin());
            const Workspace workspace;
            EXPECT_EQ(workspace.run(arguments, "/dev/full").status, 1);
            EXPECT_EQ(workspace.run(arguments).status, 0);
        }
    }
}

TEST(Process, AReportThatIsReadyGetsOutBeforeAnAbort) {
    const Workspace workspace;
    workspace.write("first.yaml", document);
    workspace.write("second.json", "{\"openapi\":\"3.1.0\",\"info\":{\"title\":\"T\",\"version\":\"1.0.0\"},"
                                   "\"paths\":{},\"x-n\":123456789012345678901}");
    const std::string report = workspace.run({"lint", "first.yaml"}).out;
    ASSERT_NE(report, "");
    const Outcome outcome = workspace.run({"lint", "--fix", "first.yaml", "second.json"});
    EXPECT_EQ(outcome.status, 128 + 6); // SIGABRT
    EXPECT_EQ(outcome.out, report);
    EXPECT_THAT(outcome.err, testing::StartsWith("Unreachable code"));
}

} // namespace
} // namespace specloom::tests
