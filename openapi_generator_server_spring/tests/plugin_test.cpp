#include "openapi_generator_server_spring/plugin.h"
#include "test_support/generated_project.h"

#include <filesystem>  // std::filesystem::path
#include <string>      // std::string
#include <string_view> // std::string_view
#include <tuple>       // std::tuple
#include <utility>     // std::pair

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::openapi_generator::server_spring {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr std::string_view namedAndGrouped = "action_naming: [id, url], controller_grouping: [tag, url]";

struct Outcome {
    test_support::GeneratedProject project;
    std::string report;

    [[nodiscard]] std::string names() const {
        std::string names;
        for (const auto& [path, content] : project.files)
            names += path.substr(path.rfind('/') + 1) + " ";
        return names;
    }
    /// With the ends of lines that editors have.
    [[nodiscard]] std::string file(const std::string& path) const {
        const auto found = project.files.find("out/src/main/java/com/specloom/" + path);
        std::string text = found == project.files.end() ? "no " + path : found->second;
        std::erase(text, '\r');
        return text;
    }
};

class SpringServer : public testing::Test {
  protected:
    Outcome runOn(const std::string& path, const std::string& configPath, std::string_view packageName = {}) {
        testing::internal::CaptureStdout();
        Outcome run = {test_support::generate<Plugin>(path, configPath, packageName), {}};
        run.report = testing::internal::GetCapturedStdout();
        return run;
    }
    /// Of a document with these paths and schemas, each in YAML, and the section of a configuration.
    Outcome runWith(std::string_view paths, std::string_view schemas = "{}",
                    std::string_view section = namedAndGrouped, std::string_view packageName = {}) {
        const std::string document = folder.write(
            "api.yaml", "openapi: 3.1.0\ninfo: {title: t, version: v}\ntags: [{name: a}, {name: b}]\n"
                        "components: {schemas: " +
                            std::string(schemas) + "}\npaths:\n" + std::string(paths));
        return runOn(document, section.empty() ? "" : configurationWith(section), packageName);
    }
    /// The same where one operation answers with a schema.
    Outcome runWithSchema(std::string_view schema, std::string_view schemas = "{}") {
        return runWith(
            "  /: {get: {tags: [a], operationId: ask, responses: {'200': {description: '', content: "
            "{application/json: {schema: " +
                std::string(schema) + "}}}}}}\n",
            schemas);
    }
    std::string configurationWith(std::string_view section) {
        return folder.write("config.yaml",
                            "commands: {generate: {server_spring: {" + std::string(section) + "}}}\n");
    }

    const test_support::TemporaryFolder folder;
};

TEST_F(SpringServer, goldenFolders) {
    const std::string example = std::string(SPECLOOM_SOURCE_DIR) + "/examples/spring.yaml";
    const std::string plain = configurationWith(namedAndGrouped);
    for (const auto& [name, configuration] : {std::pair<std::string_view, std::string>{"bookshop", example},
                                              {"everything.yaml", plain},
                                              {"java/schemas.yaml", plain}})
        test_support::expectGoldenFolder(runOn(test_support::generatorDocument(name), configuration).project,
                                         std::filesystem::path(SPECLOOM_TEST_DIR) / "tests/golden" /
                                             std::filesystem::path(name).stem());
}

TEST_F(SpringServer, reportsAllProblemsAtOnceAndWritesNothing) {
    const std::string named = "action_naming: id, controller_grouping: tag";
    const std::string get = "  /x: {get: {tags: [a], operationId: x, ";
    const std::string twice = "  /x: {get: {tags: [a], operationId: x, responses: {}},\n"
                              "       put: {tags: [a], operationId: x, responses: {}}}\n";
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"  /x: {get: {tags: [a], responses: {}}, put: {tags: [a], operationId: p, responses: {}},\n"
         "       post: {tags: [a], responses: {}}}\n",
         named + ", controller_tests: false",
         "5:12 Error Service interface method for handling get '/x' could not be named\n"
         "5:12 Error Service class method for handling get '/x' could not be named\n"
         "5:12 Error Controller method for handling get '/x' could not be named\n"
         "6:13 Error Service interface method for handling post '/x' could not be named\n"
         "6:13 Error Service class method for handling post '/x' could not be named\n"
         "6:13 Error Controller method for handling post '/x' could not be named\n"},
        {"  /x: {get: {operationId: x, responses: {}}}\n", named,
         "5:12 Error Operation get '/x' could not be grouped\n"},
        {twice, named,
         "6:12 Error More than one operation maps to the 'x' method in the service interface 'AService'\n"
         "6:12 Error More than one operation maps to the 'x' method in the service class 'AServiceImpl'\n"
         "6:12 Error More than one operation maps to the 'handleX' method in the controller 'AController'\n"
         "6:12 Error More than one operation maps to the 'testX' method in the controller "
         "'AControllerTest'\n"},
        {twice, named + ", service_classes: false, controller_tests: false",
         "6:12 Error More than one operation maps to the 'x' method in the service interface 'AService'\n"
         "6:12 Error More than one operation maps to the 'handleX' method in the controller 'AController'\n"},
        {get + "responses: {},\n   requestBody: {content: {application/json: {}}},\n"
               "   parameters: [{name: p, in: query}]}}\n  /y: {get: {operationId: y, responses: {}}}\n",
         named,
         "6:16 Error Request body has no schema defined, skipping\n"
         "7:16 Error Parameter 'p' has no schema defined, skipping\n"
         "8:12 Error Operation get '/y' could not be grouped\n"},
        {get + "responses: {'200': {description: '', content: {text/plain: {}}}, '201': {description: '',\n"
               "   content: {application/json: {}}}}}}\n",
         named,
         "5:59 Warning Response has no media type 'application/json', skipping\n"
         "5:112 Error Response has no schema defined, skipping\n"},
        {"  '/x/#{T(Evil)}': {get: {tags: [a], operationId: x, responses: {}}}\n", named,
         "5:25 Error Spring would evaluate the expression in '/x/#{T(Evil)}'\n"},
    };
    for (const auto& [paths, section, report] : cases) {
        Outcome run = runWith(paths, "{}", section);
        std::string oneBlank;
        for (const char c : run.report)
            if (c != ' ' || !oneBlank.ends_with(' '))
                oneBlank += c;
        EXPECT_EQ(oneBlank, report) << paths;
        EXPECT_EQ(run.project.failure, "");
        EXPECT_TRUE(run.project.files.empty());
    }
}

TEST_F(SpringServer, reportsPlacesAsTheReaderCountsThem) {
    const std::string document = R"({
  "openapi": "3.1.0", "info": {"title": "t", "version": "v"}, "tags": [{"name": "a"}],
  "paths": {
    "/z": {"post": {"requestBody": {"content": {
        "application/json": {}}},
      "tags": ["a"], "operationId": "p", "responses": {}}},
    "/x": {"get": {"tags": ["a"], "operationId": "x", "responses": {}},
           "put": {"tags": ["a"], "operationId": "x", "parameters": [
             {"name": "q", "in": "query"}], "responses": {}}},
    "/b": {"get": {"operationId": "b", "responses": {}}}
  }
})";
    const std::string configuration = configurationWith("action_naming: id, controller_grouping: tag, "
                                                        "service_classes: false, controller_tests: false");
    const std::pair<std::string, std::string> cases[] = {
        {"api.json", "4:36  Error Request body has no schema defined, skipping\n"
                     "8:19  Error More than one operation maps to the 'x' method in the service interface "
                     "'AService'\n"
                     "8:19  Error More than one operation maps to the 'handleX' method in the controller "
                     "'AController'\n"
                     "9:14  Error Parameter 'q' has no schema defined, skipping\n"
                     "10:19 Error Operation get '/b' could not be grouped\n"},
        {"api.yaml", "3:35 Error Request body has no schema defined, skipping\n"
                     "7:18 Error More than one operation maps to the 'x' method in the service interface "
                     "'AService'\n"
                     "7:18 Error More than one operation maps to the 'handleX' method in the controller "
                     "'AController'\n"
                     "8:13 Error Parameter 'q' has no schema defined, skipping\n"
                     "9:18 Error Operation get '/b' could not be grouped\n"},
    };
    for (const auto& [name, report] : cases)
        EXPECT_EQ(runOn(folder.write(name, document), configuration).report, report) << name;
}

TEST_F(SpringServer, reportsWhatJavaCannotHave) {
    const auto properties = [](int count) {
        std::string text = "{type: object, properties: {";
        for (int i = 0; i < count; ++i)
            text += "p" + std::to_string(i) + ": {type: string}, ";
        return text + "}}";
    };
    EXPECT_EQ(runWithSchema(properties(254)).report, "");
    EXPECT_THAT(runWithSchema(properties(255)).report,
                HasSubstr("Error Schema has more than 254 properties (com.specloom.a.Ask200ResponseDTO)\n"));
    const auto parameters = [](int count) {
        std::string text = "  /x: {get: {tags: [a], operationId: x, responses: {}, parameters: [";
        for (int i = 0; i < count; ++i)
            text += "{name: p" + std::to_string(i) + ", in: query, schema: {type: string}}, ";
        return text + "]}}\n";
    };
    EXPECT_EQ(runWith(parameters(254)).report, "");
    EXPECT_THAT(runWith(parameters(255)).report,
                HasSubstr("5:12 Error Operation get '/x' has more than 254 arguments\n"));
    const auto operations = [](int count) {
        std::string text;
        for (int i = 0; i < count; ++i)
            text += "  /" + std::to_string(i) + ": {get: {tags: [a], responses: {}}}\n";
        return text;
    };
    EXPECT_EQ(runWith(operations(13'000)).report, "");
    EXPECT_THAT(
        runWith(operations(13'200)).report,
        HasSubstr("Error The controller 'AController' has more operations than a class of Java can hold\n"));
    EXPECT_THAT(runWithSchema("{type: [string, array], maxItems: 3, minLength: 3}").report,
                HasSubstr("Schema has multiple Size annotations for multiple types, skipping\n"));
    std::string members = "{$ref: '#/components/schemas/S0'}";
    std::string schemas = "{S0: {type: object}";
    for (int i = 1; i < 300; ++i)
        schemas += ", S" + std::to_string(i) + ": {allOf: [{$ref: '#/components/schemas/S" +
                   std::to_string(i - 1) + "'}]}";
    EXPECT_THAT(
        runWithSchema("{$ref: '#/components/schemas/S299'}", schemas + "}").report,
        HasSubstr("Error Schema has more than 254 members in its allOf (com.specloom.shared.dto.S255)\n"));
}

TEST_F(SpringServer, namesOfPropertiesMustBeNames) {
    const auto named = [](const std::string& name) {
        return "{type: object, properties: {a: {type: string, x-specloom: {codegen: {name: " + name + "}}}}}";
    };
    const Outcome number = runWithSchema(named("5"));
    EXPECT_THAT(
        number.report,
        HasSubstr("Error x-specloom/codegen/name must be a string (com.specloom.a.Ask200ResponseDTO)\n"));
    EXPECT_EQ(number.project.failure, "");
    const Outcome word = runWithSchema(named("a-b"));
    EXPECT_THAT(word.report, HasSubstr("Fatal x-specloom/codegen/name must be a valid variable name "
                                       "(com.specloom.a.Ask200ResponseDTO.a-b)\n"));
    EXPECT_EQ(word.project.failure, "Invalid variable name");
    EXPECT_TRUE(number.project.files.empty() && word.project.files.empty());
}

TEST_F(SpringServer, recordsThatHoldThemselvesEnd) {
    const Outcome run =
        runWithSchema("{$ref: '#/components/schemas/A'}",
                      "{A: {type: object, properties: {b: {$ref: '#/components/schemas/B'}, c: {$ref: "
                      "'#/components/schemas/C'}}},\n"
                      "B: {allOf: [{$ref: '#/components/schemas/B'}, {type: object, properties: {a: "
                      "{$ref: '#/components/schemas/A'}}}]},\n"
                      "C: {type: object, properties: {c: {type: array, items: {$ref: "
                      "'#/components/schemas/C'}}}}}");
    EXPECT_THAT(run.file("shared/dto/A.java"), HasSubstr("            null,\n            new C()\n"));
    EXPECT_THAT(run.file("shared/dto/B.java"), HasSubstr("            null\n"));
    EXPECT_THAT(run.file("shared/dto/C.java"), HasSubstr("            List.of()\n"));
}

TEST_F(SpringServer, listsThatDoNotEndBecomeListsOfObject) {
    std::string list = "{type: string}";
    for (int i = 0; i < 100; ++i)
        list = "{type: array, items: " + list + "}";
    EXPECT_EQ(runWithSchema(list).report, "");
    EXPECT_EQ(runWithSchema("{type: array, items: " + list + "}").report,
              "Some of array schemas were not resolved (1).\n  - Ask200ResponseDTO\n");
    EXPECT_THAT(runWithSchema("{type: array, items: " + list + "}").file("a/AService.java"),
                HasSubstr("List<Object> ask();"));
}

TEST_F(SpringServer, configurationChoosesPackagesAndClasses) {
    const std::string paths = "  /x: {get: {tags: [a], operationId: x, responses: {}},\n"
                              "       put: {tags: [b], operationId: y, deprecated: true, responses: {}},\n"
                              "       post: {tags: [b], operationId: z, responses: {}, x-specloom: {codegen: "
                              "{disabled: true}}}}\n";
    const std::string all = std::string(namedAndGrouped);
    const std::pair<std::string, std::string> cases[] = {
        {all + ", skip_deprecated: true, skip_disabled: true",
         "Application.java AController.java AService.java AServiceImpl.java AControllerTest.java "},
        {all +
             ", skip_deprecated: true, skip_disabled: true, service_classes: false, controller_tests: false",
         "Application.java AController.java AService.java "},
        {all + ", skip_deprecated: true, skip_disabled: true, package_name: 5, controller_tests: false",
         "Application.java AController.java AService.java AServiceImpl.java "},
    };
    for (const auto& [section, names] : cases)
        EXPECT_EQ(runWith(paths, "{}", section).names(), names) << section;
    const Outcome run = runWith(paths, "{}",
                                all + ", package_name: org.other, web_package_name_suffix: web.v1, "
                                      "domain_package_name_suffix: core",
                                "com.acme");
    EXPECT_TRUE(run.project.files.contains("out/src/main/java/com/acme/web/v1/a/AController.java"));
    EXPECT_TRUE(run.project.files.contains("out/src/main/java/com/acme/core/a/AService.java"));
    EXPECT_TRUE(run.project.files.contains("out/src/test/java/com/acme/web/v1/b/BControllerTest.java"));
}

TEST_F(SpringServer, failsWithoutATrace) {
    const std::string reading = "Error reading configuration file: ";
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"web_package_name_suffix: A", "", reading + "Invalid package name: 'A'"},
        {"domain_package_name_suffix: a.class", "", reading + "Invalid package name: 'a.class'"},
        {"package_name: a-b", "", reading + "Invalid package name: 'a-b'"},
        {"service_classes: yes_", "", reading + "A boolean value is expected for 'service_classes'."},
        {"controller_grouping: [tag, 1]", "", reading + "controller_grouping must be a string or an array"},
        {"controller_grouping: [tag, tag]", "", reading + "Element already exists"},
        {"controller_grouping: path", "", reading + "Unknown grouping criterium: path"},
        {"action_naming: name", "", reading + "Invalid name source: 'name'"},
        {"skip_disabled: false", "Bad-Name", "Invalid package name: 'Bad-Name'"},
        {"skip_disabled: false", "com.class", "Invalid package name: 'com.class'"},
    };
    for (const auto& [section, packageName, failure] : cases) {
        const Outcome run = runWith("  {}\n", "{}", section, packageName);
        EXPECT_EQ(run.project.failure, failure);
        EXPECT_TRUE(run.project.files.empty());
    }
}

TEST_F(SpringServer, withoutConfigurationGroupsByTagAndNamesNothing) {
    const Outcome run = runWith("  /x: {get: {tags: [a], operationId: x, responses: {}}}\n", "{}", "");
    EXPECT_THAT(run.report, HasSubstr("Controller method for handling get '/x' could not be named\n"));
    EXPECT_THAT(run.report, Not(HasSubstr("grouped")));
}

} // namespace
} // namespace specloom::openapi_generator::server_spring
