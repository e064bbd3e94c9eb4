#include "openapi_generator/plugin_runner.h"
#include "openapi_generator_server_express/plugin.h"
#include "test_support/golden_folder.h"
#include "test_support/temporary_folder.h"

#include <memory>    // std::make_unique
#include <stdexcept> // std::runtime_error
#include <string>    // std::string
#include <utility>   // std::pair
#include <vector>    // std::vector

#include <gtest/gtest.h>

namespace specloom::openapi_generator::server_express {
namespace {

using test_support::filesOf;

const std::filesystem::path source = SPECLOOM_SOURCE_DIR;

class ExpressServer : public testing::Test {
  protected:
    /// Generates into the folder "out". Returns the text of the failure, with "IN" for the folder.
    std::string run(const std::string& input, std::string_view configuration = {}) {
        PluginRunner runner;
        runner.setInputPath(input);
        if (!configuration.empty())
            runner.setConfigPath(folder.write("config.json", configuration));
        Plugin& plugin = static_cast<Plugin&>(runner.addPlugin(std::make_unique<Plugin>(runner)));
        plugin.setParam("outputPath", folder.at("out"));
        try {
            runner.run();
        } catch (const std::runtime_error& error) {
            std::string text = error.what();
            const std::string name = folder.path().string();
            for (std::size_t at = text.find(name); at != std::string::npos; at = text.find(name))
                text.replace(at, name.size(), "IN");
            return text;
        }
        return "";
    }
    /// The same for a document with an operation for each of the tags, and a section of a configuration.
    std::string runWith(const std::vector<std::string>& tags, std::string_view section = "{}") {
        std::string declared, paths;
        for (const std::string& tag : tags) {
            declared += "{name: " + tag + "},";
            paths += "'/" + tag + "': {get: {tags: [" + tag + "], responses: {}}},";
        }
        return run(folder.write("api.yaml", "openapi: 3.1.0\ninfo: {title: t, version: '1'}\ntags: [" +
                                                declared + "]\npaths: {" + paths + "}\n"),
                   "{\"commands\": {\"generate\": {\"server_express\": " + std::string(section) + "}}}");
    }
    [[nodiscard]] std::string namesOfFiles() const {
        std::string names;
        for (const auto& [name, bytes] : filesOf(folder.path() / "out"))
            names += name + " ";
        return names;
    }

    const test_support::TemporaryFolder folder;
};

TEST_F(ExpressServer, isAsExpected) {
    const std::pair<std::string, std::string> cases[] = {
        {"bookshop", "examples/bookshop-3.1.yaml"},
        {"everything", "tests/generators/documents/everything.yaml"},
        {"hostile", "tests/generators/documents/hostile.json"},
    };
    for (const auto& [name, input] : cases) {
        std::filesystem::remove_all(folder.path() / "out");
        EXPECT_EQ(run(source / input), "");
        test_support::expectGoldenFolder(folder.path() / "out",
                                         std::filesystem::path(SPECLOOM_TEST_DIR) / "tests/golden" / name);
    }
}

TEST_F(ExpressServer, configurationChoosesFiles) {
    const std::string module = "src/modules/a/index.ts src/modules/a/routes.ts src/modules/index.ts ";
    const std::pair<std::string, std::string> cases[] = {
        {R"({})", "package.json src/app.ts " + module + "src/server.ts tsconfig.json "},
        {R"({"package_files": false, "openapi_schema": false})", "src/app.ts " + module + "src/server.ts "},
        {R"({"app_object": false})", "package.json " + module + "src/server.ts tsconfig.json "},
        {R"({"package_files": false, "server_object": false, "openapi_schema": true})",
         "api.yaml src/app.ts " + module},
        {R"({"package_files": false, "server_object": false, "openapi_schema": "docs/v1.yaml"})",
         "docs/v1.yaml src/app.ts " + module},
    };
    for (const auto& [section, expected] : cases) {
        std::filesystem::remove_all(folder.path() / "out");
        EXPECT_EQ(runWith({"a"}, section), "");
        EXPECT_EQ(namesOfFiles(), expected) << section;
    }
    EXPECT_EQ(filesOf(folder.path() / "out").at("docs/v1.yaml"),
              test_support::fileBytes(folder.at("api.yaml")));
}

TEST_F(ExpressServer, namesThatNoModuleCanHaveEndTheRun) {
    std::filesystem::create_directories(folder.path() / "out/src");
    folder.write("out/src/app.ts", "mine");
    const auto before = filesOf(folder.path() / "out");
    const std::string longName(300, 'a');
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{"b", "日本"},
         "Tag '日本' at /tags/1/name in IN/api.yaml: in snake case it is empty, and no module can have such "
         "a name"},
        {{"..."},
         "Tag '...' at /tags/0/name in IN/api.yaml: in snake case it is empty, and no module can have such "
         "a name"},
        {{"Index"},
         "Tag 'Index' at /tags/0/name in IN/api.yaml: the index of all modules has that name, so no module "
         "can have it"},
        {{longName},
         "Tag '" + longName +
             "' at /tags/0/name in IN/api.yaml: No file can be generated at IN/out/src/"
             "modules/" +
             longName + "/index.ts: a name in it is longer than 255 bytes"},
    };
    for (const auto& [tags, expected] : cases) {
        EXPECT_EQ(runWith(tags), expected);
        EXPECT_EQ(filesOf(folder.path() / "out"), before) << expected;
    }
}

} // namespace
} // namespace specloom::openapi_generator::server_express
