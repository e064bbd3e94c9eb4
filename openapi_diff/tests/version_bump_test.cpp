#include "openapi_diff/version_bump.h"
#include "test_support/failure.h"
#include "test_support/texts.h"

#include <stdexcept> // std::runtime_error
#include <string>    // std::string
#include <vector>    // std::vector

#include <gtest/gtest.h>

namespace specloom::openapi_diff {
namespace {

using enum ChangeLevel;
using test_support::failureOf;

TEST(VersionBump, raisesAsMuchAsIsNeeded) {
    struct Row {
        std::string source;
        std::string destination;
        ChangeLevel level;
        std::string expected;
    };
    const std::vector<Row> rows = {
        {"1.2.3", "1.2.3", NonFunctional, "1.2.4"},
        {"1.2.3", "1.2.3", NonBreaking, "1.3.0"},
        {"1.2.3", "1.2.3", Breaking, "2.0.0"},
        {"0.9.7", "0.9.7", Breaking, "1.0.0"},
        // Already far enough, or further.
        {"1.2.3", "1.2.4", NonFunctional, "1.2.4"},
        {"1.2.3", "1.9.0", NonBreaking, "1.9.0"},
        {"1.2.3", "1.2.4", NonBreaking, "1.3.0"},
        {"2.0.0", "1.0.0", NonFunctional, "2.0.1"},
        // 255 becomes 0, and is then behind.
        {"1.2.255", "1.2.255", NonFunctional, "1.2.255"},
        {"1.2.255", "1.1.0", NonFunctional, "1.2.0"},
        {"255.0.0", "0.0.1", Breaking, "0.0.1"},
        // A release comes behind its prereleases.
        {"1.2.3-rc.2", "1.2.3-rc.2", NonFunctional, "1.2.4-rc.2"},
        {"1.2.3-alpha", "1.2.4-beta", NonFunctional, "1.2.4-beta"},
        {"1.2.3-beta.9", "1.2.4-alpha.10", NonFunctional, "1.2.4-beta.9"},
        {"1.2.3-rc.10", "1.2.4-rc.9", NonFunctional, "1.2.4-rc.10"},
        {"1.2.3", "2.0.0-rc.1", Breaking, "2.0.0"},
        {"1.2.3-rc", "2.0.0", Breaking, "2.0.0"},
        {"1.2.3-alpha.0", "1.2.3", NonBreaking, "1.3.0-alpha"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(bumpVersion(row.source, row.destination, row.level), row.expected)
            << row.source << " " << row.destination;
}

TEST(VersionBump, readsOnlyVersions) {
    std::vector<std::string> others = test_support::wordsOf(
        "1 1.2 1.2.3.4 v1.2.3 256.0.0 1.02.3 1.-2.3 +1.2.3 1.2.x 1.2.3- 1.2.3-gamma.1 "
        "1.2.3-alpha. 1.2.3-rc.256 1.2.3-rc1 1.2.3-alpha.01 1.2.3-rc.1.2 1.2.3+build 2026-11-21");
    others.insert(others.end(), {"", "1.2.3 ", " 1.2.3"});
    for (const std::string& text : others)
        EXPECT_EQ(failureOf<std::runtime_error>([&] { return bumpVersion("1.0.0", text, Breaking); }),
                  "semver::version::from_string invalid version.")
            << text;
    const SemanticVersion impossible{.prerelease = static_cast<SemanticVersion::Prerelease>(4)};
    EXPECT_THROW((void)impossible.text(), std::runtime_error);
    EXPECT_DEATH((void)bumpVersion("1.0.0", "1.0.0", None), "openapi_diff/src/version_bump");
}

} // namespace
} // namespace specloom::openapi_diff
