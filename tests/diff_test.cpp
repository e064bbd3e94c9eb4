// `specloom diff` as a user runs it, and the page of the manual about it: what the page shows is what the
// program prints. With SPECLOOM_UPDATE_GOLDEN set the page is written anew, for review.

#include "manual.h"
#include "test_support/corpora.h"
#include "test_support/read_tree.h"
#include "workspace.h"

#include <algorithm>  // std::mismatch
#include <filesystem> // std::filesystem
#include <set>        // std::set
#include <string>     // std::string
#include <vector>     // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::tests {
namespace {

using testing::StartsWith;

// ---- the manual

namespace fs = std::filesystem;
using test_support::fileBytes;

TEST(Diff, doesWhatTheManualShows) {
    const fs::path root = SPECLOOM_SOURCE_DIR;
    const Workspace workspace;
    for (const char* name :
         {"examples/bookshop-3.1.yaml", "examples/bookshop-next.yaml", "examples/diff.yaml"})
        workspace.write(name, fileBytes(root / name));
    const std::string additions =
        "openapi: 3.1.0\ninfo:\n  title: Tides\n  version: 1.4.2\npaths:\n  /tides:\n    get:\n"
        "      responses: {\"200\": {description: Tides.}}\n";
    workspace.write("additions-old.yaml", additions);
    workspace.write("additions-new.yaml",
                    additions + "    put:\n      responses: {\"204\": {description: Noted.}}\n");
    EXPECT_GT(expectManualShows(workspace, "docs/diff.md"), 5u);
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

/// That the texts are the same but for the one line that has the version.
void expectNothingButTheVersion(const std::string& before, const std::string& after,
                                const VersionPair& pair) {
    const auto [old, now] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const auto place = static_cast<std::size_t>(old - before.begin());
    std::string expected = before;
    const std::size_t version = expected.rfind(pair.now, place); // as far as both versions begin alike
    ASSERT_LE(place - version, pair.now.size());
    EXPECT_NE(expected.substr(expected.rfind('\n', version), version).find("version"), std::string::npos);
    expected.replace(version, pair.now.size(), pair.written);
    EXPECT_TRUE(after == expected);
}

TEST(Diff, raisesTheVersionsOfRealDocuments) {
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
            workspace.write(names[side], fileBytes(files[side]));
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
        EXPECT_EQ(workspace.read(names[0]), fileBytes(files[0]));
        if (pair.written == pair.now) {
            EXPECT_EQ(workspace.read(names[1]), fileBytes(files[1]));
            EXPECT_EQ(fs::last_write_time(workspace.path(names[1])), longAgo);
            continue;
        }
        expectNothingButTheVersion(fileBytes(files[1]), workspace.read(names[1]), pair);
    }
}

} // namespace
} // namespace specloom::tests
