#include "openapi_generator_client_fetch/plugin.h"
#include "test_support/generated_project.h"
#include "test_support/temporary_folder.h"

#include <cstddef>     // std::size_t
#include <filesystem>  // std::filesystem::path
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <gtest/gtest.h>

namespace specloom::openapi_generator::client_fetch {
namespace {

using test_support::GeneratedProject;

TEST(FetchPlugin, goldenFolders) {
    const std::filesystem::path golden = SPECLOOM_TEST_DIR "/tests/golden";
    for (const std::string_view name : {"bookshop", "everything.yaml", "parameters.yaml"}) {
        GeneratedProject project = test_support::generate<Plugin>(test_support::generatorDocument(name));
        const auto utils = project.files.extract("out/src/utils.ts"); // the same for all
        ASSERT_FALSE(utils.empty()) << name;
        test_support::expectGolden(utils.mapped(), golden / "utils.ts");
        expectGoldenFolder(project, golden / std::filesystem::path(name).stem());
    }
}

/// What stands in the blocks of code of a page that are in `language`.
std::vector<std::string> codeOf(const std::string& page, const std::string& language) {
    std::vector<std::string> blocks;
    const std::string fence = "\n```" + language + "\n";
    for (std::size_t at = page.find(fence); at != std::string::npos; at = page.find(fence, at)) {
        at += fence.size();
        blocks.push_back(page.substr(at, page.find("```\n", at) - at));
    }
    return blocks;
}

TEST(FetchPlugin, exampleOfTheManualIsWhatIsGenerated) {
    const std::string page =
        test_support::fileBytes(std::filesystem::path(SPECLOOM_SOURCE_DIR) / "docs/generating-fetch.md");
    const std::vector<std::string> sources = codeOf(page, "ts");
    const test_support::TemporaryFolder folder;
    const GeneratedProject project =
        test_support::generate<Plugin>(folder.write("api.yaml", codeOf(page, "yaml").at(0)));
    EXPECT_EQ(project.files.at("out/src/actions.ts"), sources.at(0));
    EXPECT_EQ(project.files.at("out/src/index.ts"), sources.at(1));
}

} // namespace
} // namespace specloom::openapi_generator::client_fetch
