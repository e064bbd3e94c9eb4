#include "openapi_generator/plugin_runner.h"
#include "openapi_generator_server_express/plugin.h"
#include "test_support/golden_folder.h"
#include "test_support/temporary_folder.h"

#include <memory>    // std::make_unique
#include <stdexcept> // std::runtime_error
#include <string>    // std::string
#include <utility>   // std::pair

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
    std::string runWith(std::string_view tags, std::string_view section = "{}") {
        return run(folder.write("api.yaml", "openapi: 3.1.0\ninfo: {title: t, version: '1'}\ntags: [" +
                                                listOf(tags, "{name: ", "}") + "]\npaths: {" + pathsOf(tags) +
                                                "}\n"),
                   "{\"commands\": {\"generate\": {\"server_express\": " + std::string(section) + "}}}");
    }
    [[nodiscard]] std::string namesOfFiles() const {
        std::string names;
        for (const auto& [name, bytes] : filesOf(folder.path() / "out"))
            names += name + " ";
        return names;
    }

    const test_support::TemporaryFolder folder;

  private:
    static std::string listOf(std::string_view names, const std::string& before, const std::string& behind) {
        std::string list;
        for (std::size_t begin = 0; begin < names.size();) {
            const std::size_t end = std::min(names.find(',', begin), names.size());
            list.append(list.empty() ? "" : ", ").append(before);
            list.append(names.substr(begin, end - begin)).append(behind);
            begin = end + 1;
        }
        return list;
    }
    static std::string pathsOf(std::string_view tags) {
        std::string paths;
        for (std::size_t begin = 0, count = 0; begin < tags.size(); ++count) {
            const std::size_t end = std::min(tags.find(',', begin), tags.size());
            paths.append(count == 0 ? "" : ", ").append("/").append(std::to_string(count));
            paths.append(": {get: {tags: [").append(tags.substr(begin, end - begin));
            paths.append("], responses: {}}}");
            begin = end + 1;
        }
        return paths;
    }
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

TEST_F(ExpressServer, saysHowManyOperationsHaveNoRoute) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(run(source / "tests/generators/documents/everything.yaml"), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "specloom: note: 2 operations have no declared tag and so no route\n");
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
        EXPECT_EQ(runWith("a", section), "");
        EXPECT_EQ(namesOfFiles(), expected) << section;
    }
    EXPECT_EQ(filesOf(folder.path() / "out").at("docs/v1.yaml"),
              test_support::fileBytes(folder.at("api.yaml")));
}

TEST_F(ExpressServer, failsWithoutATrace) {
    std::filesystem::create_directories(folder.path() / "out/src");
    folder.write("out/src/app.ts", "mine");
    const auto before = filesOf(folder.path() / "out");
    const std::string reading = "Error reading configuration file: ";
    const std::string line = "Error reading configuration file (line 1): ";
    const std::string longName(300, 'a');
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"a", R"({"package_files": 1})", reading + "A boolean value is expected for 'package_files'."},
        {"a", R"({"app_object": "x"})", reading + "A boolean value is expected for 'app_object'."},
        {"a", R"({"server_object": null})", reading + "A boolean value is expected for 'server_object'."},
        {"a", R"({"openapi_schema": 1})", line + "openapi_schema must be a boolean or a string"},
        {"a", R"([])", line + "An object is expected for 'server_express'"},
        {"a", R"({"openapi_schema": "src/app.ts"})", "Source file already exists: IN/out/src/app.ts"},
        {"a", R"({"openapi_schema": ""})", "No file can be generated at IN/out/: it does not end in a name"},
        {"b,日本", "{}",
         "Tag '日本' at /tags/1/name in IN/api.yaml: in snake case it is empty, and no module can have such "
         "a name"},
        {"...", "{}",
         "Tag '...' at /tags/0/name in IN/api.yaml: in snake case it is empty, and no module can have such "
         "a name"},
        {"Index", "{}",
         "Tag 'Index' at /tags/0/name in IN/api.yaml: the index of all modules has that name, so no module "
         "can have it"},
        {longName, "{}",
         "Tag '" + longName +
             "' at /tags/0/name in IN/api.yaml: No file can be generated at IN/out/src/"
             "modules/" +
             longName + "/index.ts: a name in it is longer than 255 bytes"},
        {"pet-store,petStore", "{}", "Source file already exists: IN/out/src/modules/pet_store/index.ts"},
    };
    for (const auto& [tags, section, expected] : cases) {
        EXPECT_EQ(runWith(tags, section), expected);
        EXPECT_EQ(filesOf(folder.path() / "out"), before) << expected;
    }
    EXPECT_NE(run(folder.write("broken.yaml", "openapi: 3.1.0\npaths: []\n")), "");
    EXPECT_EQ(filesOf(folder.path() / "out"), before);
}

} // namespace
} // namespace specloom::openapi_generator::server_express
