#include "workspace.h"

#include <filesystem> // std::filesystem
#include <string>     // std::string

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::tests {
namespace {

const std::string document = "{openapi: 3.1.0, info: {title: T, version: 1.0.0}, paths: {}}";

TEST(Process, aReportThatIsReadyGetsOutBeforeAnAbort) {
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

TEST(Process, aFolderWithoutPermissionHasNoTelemetry) {
    const Workspace workspace;
    std::filesystem::permissions(workspace.path(""),
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    const Outcome outcome = workspace.runScript(execAsPlainUser(), {"server"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out + outcome.err, "");
    EXPECT_FALSE(std::filesystem::exists(workspace.path(".specloom.telemetry")));
    std::filesystem::permissions(workspace.path(""), std::filesystem::perms::owner_all);
}

} // namespace
} // namespace specloom::tests
