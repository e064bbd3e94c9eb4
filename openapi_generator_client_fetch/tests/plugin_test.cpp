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

GeneratedProject generateFrom(std::string_view paths) {
    const test_support::TemporaryFolder folder;
    const std::string document =
        "openapi: 3.1.0\ninfo: {title: t, version: v}\npaths:\n" + std::string(paths);
    return test_support::generate<Plugin>(folder.write("api.yaml", document));
}

TEST(FetchPlugin, goldenFolders) {
    for (const std::string_view name : {"bookshop", "everything.yaml", "parameters.yaml"})
        expectGoldenFolder(test_support::generate<Plugin>(test_support::generatorDocument(name)),
                           std::filesystem::path(SPECLOOM_TEST_DIR) / "tests/golden" /
                               std::filesystem::path(name).stem());
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

TEST(FetchPlugin, documentWithoutOperationsHasEmptyActions) {
    const GeneratedProject project = generateFrom("  /a: {}\n");
    EXPECT_EQ(project.files.size(), 5U);
    EXPECT_EQ(project.files.at("out/src/actions.ts"), "");
    EXPECT_EQ(project.files.at("out/src/types.ts"), "");
    EXPECT_EQ(project.files.at("out/src/formatters.ts"), "");
}

TEST(FetchPlugin, operationsOfOneNameWriteNothing) {
    const GeneratedProject project = generateFrom("  /a: {get: {responses: {}}, put: {responses: {}}}\n");
    EXPECT_EQ(project.failure, "Function already exists temp");
    EXPECT_TRUE(project.files.empty());
}

TEST(FetchPlugin, parameterOfTheQueryIsAskedForBesideOthersOfItsName) {
    const GeneratedProject project = generateFrom(
        "  /a:\n    parameters: [{name: x, in: header, schema: {}}, {name: y, in: query, schema: {}}]\n"
        "    get:\n      parameters: [{name: x, in: query, schema: {}},"
        " {name: y, in: cookie, schema: {}}]\n      responses: {}\n");
    EXPECT_EQ(project.failure, "");
    const std::string& actions = project.files.at("out/src/actions.ts");
    for (const std::string_view line :
         {"addQueryParam(url, \"x\", params.x);\n", "addQueryParam(url, \"y\", params.y);\n",
          "if (params.x) headerParameters['x'] = params.x;\n"})
        EXPECT_NE(actions.find(line), std::string::npos) << line << actions;
}

} // namespace
} // namespace specloom::openapi_generator::client_fetch
