#include "workspace.h"

#include <filesystem> // std::filesystem
#include <string>     // std::string

#include <gtest/gtest.h>

namespace specloom::tests {
namespace {

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
