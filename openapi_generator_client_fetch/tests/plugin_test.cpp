#include "openapi_generator_client_fetch/plugin.h"
#include "test_support/generated_project.h"
#include "test_support/temporary_folder.h"

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
