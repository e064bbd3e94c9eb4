#include "openapi_generator_server_nestjs/plugin.h"
#include "test_support/generated_project.h"
#include "test_support/temporary_folder.h"

#include <filesystem>  // std::filesystem::path
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::openapi_generator::server_nestjs {
namespace {

using test_support::GeneratedProject;

std::string documentWith(std::string_view tags, std::string_view operations) {
    std::string text = "openapi: 3.1.0\ninfo: {title: t, version: v}\n";
    ((text += "tags: [") += tags) += "]\npaths:\n";
    return (text += operations) += "  /last: {}\n";
}

GeneratedProject generateFrom(const std::string& document) {
    const test_support::TemporaryFolder folder;
    const std::string path = folder.write("api.yaml", document);
    GeneratedProject project = test_support::generate<Plugin>(path);
    if (const std::size_t at = project.failure.find(path); at != std::string::npos)
        project.failure.replace(at, path.size(), "API");
    return project;
}

TEST(NestJSPlugin, goldenFolders) {
    for (const std::string_view name : {"bookshop", "everything.yaml", "hostile.json"})
        expectGoldenFolder(test_support::generate<Plugin>(test_support::generatorDocument(name)),
                           std::filesystem::path(SPECLOOM_TEST_DIR) / "tests/golden" /
                               std::filesystem::path(name).stem());
}

TEST(NestJSPlugin, modulesAreFirstDeclaredTagsOrOperationIdsOrDefault) {
    const GeneratedProject project = generateFrom(
        documentWith("{name: Pet Store}, {name: pet-store}, {name: other}",
                     "  /a:\n    get: {tags: [pet-store, other], responses: {}}\n    put: {tags: [Pet "
                     "Store], responses: {}}\n"
                     "  /b:\n    get: {tags: [undeclared], operationId: listThings, responses: {}}\n"
                     "    put: {responses: {}}\n"));
    EXPECT_EQ(project.failure, "");
    std::vector<std::string> paths;
    for (const auto& [path, content] : project.files) {
        EXPECT_EQ(content, "") << path;
        paths.push_back(path);
    }
    EXPECT_THAT(paths, testing::ElementsAre("out/src/default/default.controller.ts",
                                            "out/src/default/default.module.ts",
                                            "out/src/list_things/list_things.controller.ts",
                                            "out/src/list_things/list_things.module.ts",
                                            "out/src/pet_store/pet_store.controller.ts",
                                            "out/src/pet_store/pet_store.module.ts"));
    EXPECT_EQ(generateFrom(documentWith("", "")).files, MemoryFileSystem::Files());
}

TEST(NestJSPlugin, namesThatNoFileCanHaveEndTheRun) {
    const std::string letters(300, 'a');
    const std::string empty = "in snake case it is empty, and no module can have such a name";
    const std::string path = "out/src/" + letters + "/" + letters + ".module.ts";
    const struct {
        std::string name; ///< as in the document
        std::string shown;
        std::string reason;
    } cases[] = {
        {"日本", "日本", empty},
        {"...", "...", empty},
        {"/", "/", empty},
        {"\\0", "\\u0000", empty},
        {letters, letters, "No file can be generated at " + path + ": a name in it is longer than 255 bytes"},
    };
    for (const auto& [name, shown, reason] : cases) {
        const GeneratedProject byId =
            generateFrom(documentWith("", "  /a: {get: {operationId: \"" + name + "\", responses: {}}}\n"));
        EXPECT_EQ(byId.failure,
                  "Operation id '" + shown + "' at /paths/~1a/get/operationId in API: " + reason);
        EXPECT_TRUE(byId.files.empty());
        const GeneratedProject byTag = generateFrom(documentWith(
            "{name: \"" + name + "\"}", "  /a: {get: {tags: [\"" + name + "\"], responses: {}}}\n"));
        EXPECT_EQ(byTag.failure, "Tag '" + shown + "' at /tags/0/name in API: " + reason);
        EXPECT_TRUE(byTag.files.empty());
    }
}

TEST(NestJSPlugin, namesCannotLeaveTheFolder) {
    for (const std::string_view name : {"../../x", "/etc/x", "..\\\\x", "a/../../x", "~/x", "C:/x"}) {
        const GeneratedProject project = generateFrom(
            documentWith("", "  /a: {get: {operationId: \"" + std::string(name) + "\", responses: {}}}\n"));
        EXPECT_EQ(project.files.size(), 2U) << name << ": " << project.failure;
        for (const auto& [path, content] : project.files)
            EXPECT_TRUE(path.starts_with("out/src/") && path.find("..") == std::string::npos) << path;
    }
}

} // namespace
} // namespace specloom::openapi_generator::server_nestjs
