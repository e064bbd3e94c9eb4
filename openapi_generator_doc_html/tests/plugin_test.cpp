#include "foundation/escapes.h"
#include "openapi_generator_doc_html/plugin.h"
#include "openapi_i18n/site_texts.h"
#include "test_support/generated_project.h"

#include <filesystem>  // std::filesystem::path
#include <string>      // std::string
#include <string_view> // std::string_view
#include <tuple>       // std::tuple
#include <utility>     // std::pair
#include <vector>      // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::openapi_generator::doc_html {
namespace {

using testing::HasSubstr;
using testing::Not;

const std::string examples = std::string(SPECLOOM_SOURCE_DIR) + "/examples/";

struct Outcome {
    MemoryFileSystem::Files files;
    std::string failure;

    /// The names of files that begin so, without the beginning and their extension.
    [[nodiscard]] std::string names(std::string_view beginning) const {
        std::string names;
        for (const auto& [path, content] : files)
            if (path.starts_with("out/" + std::string(beginning)))
                names += path.substr(4 + beginning.size(), path.rfind('.') - 4 - beginning.size()) + " ";
        return names;
    }
    /// With the ends of lines that editors have.
    [[nodiscard]] std::string file(const std::string& path) const {
        const auto found = files.find("out/" + path);
        std::string text = found == files.end() ? "no " + path : found->second;
        std::erase(text, '\r');
        return text;
    }
};

class DocHtml : public testing::Test {
  protected:
    using Locales = std::vector<std::pair<std::string, std::string>>;

    /// Runs into memory; `locales` are locales with the paths of their files.
    static Outcome runOn(std::string_view document, std::string_view configuration,
                         const Locales& locales = {}) {
        auto memory = std::make_unique<MemoryFileSystem>();
        const MemoryFileSystem& made = *memory;
        memory->createDirectories(document); // from where it is copied
        memory->writeFile(document, test_support::fileBytes(std::string(document)));
        PluginRunner runner(std::move(memory));
        runner.setInputPath(document);
        if (!configuration.empty())
            runner.setConfigPath(configuration);
        runner.addPlugin(std::make_unique<Plugin>(runner)).setParam("outputPath", "out");
        Outcome outcome;
        try {
            for (const auto& [locale, path] : locales)
                runner.addLocaleFile(locale, path);
            runner.run();
        } catch (const std::exception& error) {
            outcome.failure = error.what();
        }
        outcome.files = made.files();
        std::erase_if(outcome.files, [](const auto& file) { return !file.first.starts_with("out/"); });
        return outcome;
    }
    /// With a section of a configuration in JSON.
    Outcome runWith(std::string_view document, std::string_view section, const Locales& locales = {}) {
        return runOn(document,
                     folder.write("config.json", "{\"commands\":{\"generate\":{\"doc_html\":" +
                                                     std::string(section) + "}}}"),
                     locales);
    }
    /// Of a small document.
    Outcome runSmall(std::string_view section) {
        return runWith(folder.write("api.yaml",
                                    "openapi: 3.1.0\ninfo: {title: t, version: v}\nservers: [{url: /}]\n"
                                    "tags: [{name: pets}, {name: none}]\n"
                                    "paths:\n"
                                    "  /pets: {get: {operationId: listPets, tags: [pets], responses: {}}}\n"
                                    "  /x: {put: {responses: {}}}\n"
                                    "components: {schemas: {Pet: {type: object}}}\n"),
                       section);
    }
    static void expectGolden(const Outcome& outcome, const std::string& name) {
        test_support::expectGoldenFolder({outcome.files, outcome.failure},
                                         std::filesystem::path(SPECLOOM_TEST_DIR) / "tests/golden" / name);
    }

    const test_support::TemporaryFolder folder;
};

TEST_F(DocHtml, goldenFolders) {
    const std::string bookshop = test_support::generatorDocument("bookshop");
    expectGolden(runOn(bookshop, ""), "bookshop");
    expectGolden(runOn(bookshop, examples + "doc-html.yaml", {{"de", examples + "bookshop-de.json"}}),
                 "bookshop-languages");
    expectGolden(runWith(test_support::generatorDocument("everything.yaml"), R"({"operations": "group"})"),
                 "everything");
}

TEST_F(DocHtml, granularityAndLocalesDecideWhichPagesThereAre) {
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"{}", "index search ", ""},
        {R"({"pages": false, "openapi_schema": true})", "", ""},
        {R"({"search": false, "changelog": true, "openapi_schema": true})", "changelog index ", "api.yaml"},
        {R"({"operations": "separate"})", "index operations/list-pets operations/x-put resources search ",
         ""},
        {R"({"operations": "group", "search": false})", "groups/pets index operations resources ", ""},
        {R"({"resources": "separate", "search": false, "openapi_schema": "doc/api.yaml"})",
         "index operations resources resources/pet ", "doc/api.yaml"},
        {R"({"i18n": {"locales": ["en", "pl", "en"]}})", "/index index pl/index pl/search search ", ""},
        {R"({"search": false, "i18n": {"locales": ["en", "pl"], "prefix_default_locale": true}})",
         "/index en/index index pl/index ", ""},
        {R"({"search": false, "i18n": {"locales": ["pl"], "prefix_default_locale": true}})", "pl/index ", ""},
        {R"({"search": false, "i18n": {"default_locale": "pl", "prefix_default_locale": false}})", "index ",
         ""},
    };
    for (const auto& [section, pages, copies] : cases) {
        const Outcome run = runSmall(section);
        EXPECT_EQ(run.failure, "");
        EXPECT_EQ(run.names("src/middleware") + run.names("src/pages/"), pages) << section;
        EXPECT_EQ(copies.empty(), run.names("api").empty() && run.names("doc/").empty()) << section;
        EXPECT_TRUE(copies.empty() || run.files.contains("out/" + copies)) << section;
        EXPECT_FALSE(run.names("src/components/").empty() || run.names("package.").empty());
    }
}

TEST_F(DocHtml, configurationIsRefusedWithWhatIsWrong) {
    const std::string at = "Error reading configuration file (line 1): ";
    const std::string plain = "Error reading configuration file: ";
    const std::pair<std::string, std::string> cases[] = {
        {R"({"operations": "merged"})", at + "Unrecognized operation granularity"},
        {R"({"resources": "group"})", at + "Unrecognized resource granularity"},
        {R"({"pages": 1})", plain + "A boolean value is expected for 'pages'."},
        {R"({"search": "no"})", plain + "A boolean value is expected for 'search'."},
        {R"({"changelog": null})", plain + "A boolean value is expected for 'changelog'."},
        {R"({"openapi_schema": 1})", at + "openapi_schema must be a boolean or a string"},
        {R"({"use_request_body_examples": 1})",
         plain + "A boolean value is expected for 'use_request_body_examples'."},
        {R"({"generate_response_schema": 1})",
         plain + "A boolean value is expected for 'generate_response_schema'."},
        {R"({"use_response_examples": 1})",
         plain + "A boolean value is expected for 'use_response_examples'."},
        {R"({"fail_on_generator_error": 1})",
         plain + "A boolean value is expected for 'fail_on_generator_error'."},
        {R"({"request_code_examples": {}})", at + "request_code_examples must be an array or a boolean"},
        {R"({"request_code_examples": [1]})", at + "Request code example must be a string"},
        {R"({"request_code_examples": ["curl", "wget"]})", at + "Invalid request body example variant"},
        {R"({"sidebar": {"operation_item_layout": "url"}})", at + "Invalid operation item layout"},
        {R"({"sidebar": {"items": []}})", at + "Missing predefined sidebar item: overview"},
        {R"({"sidebar": {"items": ["overview", {}, "resources"]}})",
         at + "Missing predefined sidebar item: operations"},
        {R"({"sidebar": {"items": ["overview", "overview"]}})",
         plain + "Duplicate predefined sidebar item: overview"},
        {R"({"sidebar": {"items": ["start"]}})", at + "Unrecognized predefined sidebar item"},
        {R"({"sidebar": {"items": [1]}})", at + "Invalid sidebar item"},
        {R"({"sidebar": {"items": [{"type": "group", "items": ["a"]}]}})",
         at + "Custom navigation item must be an object"},
        {R"({"i18n": {"locales": []}})", at + "Locales array cannot be empty"},
        {R"({"i18n": {"locales": [1]}})", at + "Locale must be a string"},
        {R"({"i18n": {"locales": ["en", "xx"]}})", at + "Not a valid ISO 639-1 language code"},
        {R"({"i18n": {"locales": ["en"], "default_locale": "pl"}})",
         at + "Value of the default_locale is not in the locales array"},
        {R"({"i18n": {"prefix_default_locale": true}})",
         at + "When prefix_defule_locale is used, default_locale must also be set"},
        {R"({"i18n": {"locales": ["en"], "prefix_default_locale": 1}})",
         plain + "A boolean value is expected for 'prefix_default_locale'."},
        // Texts of another kind count as absent.
        {R"({"operations": 1, "resources": 1, "html_title_prefix": 1, "html_meta": {"author": 1}, "template":
             {"package": 1, "version": 1}, "sidebar": {"operation_item_layout": 1}})",
         ""},
    };
    for (const auto& [section, failure] : cases) {
        const Outcome run = runSmall(section);
        EXPECT_EQ(run.failure, failure) << section;
        EXPECT_EQ(run.files.empty(), !failure.empty()) << section;
    }
}

TEST_F(DocHtml, everyKeyOfTheConfigurationHasItsEffect) {
    const Outcome run = runSmall(
        R"({"html_title_prefix": "API", "html_meta": {"author": "A", "description": "D", "generator": "G", "keywords": "K"},
            "template": {"package": "@us/it's", "version": "^2"}, "request_code_examples": ["vanilla_js"],
            "sidebar": {"operation_item_layout": "summary", "items": [
              {"text": "Home", "href": "/home"}, "overview", {"type": "group", "text": "More", "items": [{"text": "a", "href": "b"}]},
              "resources", "operations"]}})");
    EXPECT_THAT(run.file("src/pages/search.astro"),
                HasSubstr("  title={\"API - Search\"}\n  author={\"A\"}\n  description={\"D\"}\n  "
                          "description={\"G\"}\n  description={\"K\"}\n"));
    EXPECT_THAT(run.file("package.json"), HasSubstr("    \"@us/it's\": \"^2\",\n"));
    EXPECT_THAT(run.file("tailwind.config.cjs"), HasSubstr("'./node_modules/@us/it\\'s/src/**/*."));
    EXPECT_EQ(run.file("astro.config.mjs"),
              "import baseConfig from '@us/it\\'s/astro.config.mjs';\n\nexport default baseConfig;\n");
    EXPECT_THAT(run.file("src/components/Sidebar.astro"),
                HasSubstr("<Sidebar>\n"
                          "  <CustomItem text={\"Home\"} href={\"/home\"} />\n"
                          "  <OverviewItem href={\"/#overview\"} label={\"Overview\"} />\n"
                          "  <CustomItemGroup text={\"More\"}>\n"
                          "    <CustomItem nested text={\"a\"} href={\"b\"} />\n"
                          "  </CustomItemGroup>\n"
                          "  <Resources />\n"
                          "  <Operations />\n"
                          "</Sidebar>\n"));
    EXPECT_THAT(run.file("src/components/sidebar/Operations.astro"), HasSubstr(" layout={\"summary\"} />"));
    const std::string operation = run.file("src/components/operations/ListPets.astro");
    EXPECT_THAT(operation, HasSubstr("await fetch("));
    EXPECT_THAT(operation, Not(HasSubstr("curl")));
}

/// What a site says of itself, in attributes whose names end in "abel" and in the objects of `labels`, comes
/// from the texts that translators get.
TEST_F(DocHtml, fixedTextsAreInTheLanguageOfTheLocale) {
    std::string texts;
    for (const std::string_view text : openapi_i18n::siteTexts())
        texts +=
            (texts.empty() ? "" : ",") + toJsonLiteral(text) + ":" + toJsonLiteral("~" + std::string(text));
    const Outcome run = runWith(test_support::generatorDocument("bookshop"),
                                R"({"i18n": {"locales": ["de"]}, "operations": "group", "changelog": true})",
                                {{"de", folder.write("de.json", "{" + texts + "}")}});
    EXPECT_EQ(run.failure, "");
    std::size_t count = 0;
    for (const auto& [path, content] : run.files) {
        for (const std::string_view mark : {"abel={\"", "abels={{\""})
            for (std::size_t at = content.find(mark); at != std::string::npos;
                 at = content.find(mark, at + 1)) {
                const std::string_view rest = std::string_view(content).substr(at + mark.size());
                const bool isName = rest.starts_with("cURL") || rest.starts_with("JavaScript");
                const std::string_view text = mark.size() == 7 ? rest : rest.substr(rest.find(": \"") + 3);
                if (isName || (path.find("_usage/") != std::string::npos && !rest.starts_with("~U")))
                    continue; // of a language, of an operation or of a schema
                ++count;
                EXPECT_TRUE(text.starts_with("~")) << path << ": " << text.substr(0, 30);
            }
        if (const std::size_t title = content.find("\n  title={\""); title != std::string::npos) {
            EXPECT_EQ(content[title + 11], '~') << path;
        }
    }
    EXPECT_GT(count, 50u);
}

TEST_F(DocHtml, constraintsOfABodyAreLeftOut) {
    const Outcome run =
        runWith(folder.write("body.yaml",
                             "openapi: 3.1.0\ninfo: {title: t, version: v}\nservers: [{url: /}]\npaths:\n"
                             "  /y: {post: {operationId: y, responses: {}, parameters: [{name: p, in: query, "
                             "schema: {type: integer, minimum: 3}}], requestBody: {required: true, content: "
                             "{application/json: {schema: {type: array, minItems: 2}}}}}}\n"),
                "{}");
    EXPECT_THAT(run.file("src/components/operations/Y.astro"),
                HasSubstr(" name={\"p\"} type={\"integer\"} minimum={3}"));
    EXPECT_THAT(
        run.file("src/components/operations/Y.astro"),
        HasSubstr(
            "  <RequestBody\n    label={\"Request body\"} mediaType={\"application/json\"} "
            "mediaTypeLabel={\"Media type\"} type={\"array\"} required requiredLabel={\"Required\"}\n  >\n"));
}

TEST_F(DocHtml, withoutAServerThereAreNoSamples) {
    const Outcome run = runOn(folder.write("api.yaml", "openapi: 3.1.0\ninfo: {title: t, version: v}\n"
                                                       "paths: {/: {get: {responses: {}}}}\n"),
                              "");
    EXPECT_EQ(run.failure, "No server found");
    EXPECT_TRUE(run.files.empty());
}

TEST_F(DocHtml, namesThatNoFileCanHaveEndTheRun) {
    const std::string longName(300, 'a');
    const Outcome run =
        runOn(folder.write("api.yaml", "openapi: 3.1.0\ninfo: {title: t, version: v}\npaths: {}\n"
                                       "components: {schemas: {" +
                                           longName + ": {}}}\n"),
              "");
    EXPECT_THAT(run.failure, HasSubstr("' at /components/schemas in "));
    EXPECT_THAT(run.failure, HasSubstr("a name in it is longer than 255 bytes"));
    EXPECT_TRUE(run.files.empty());
}

/// What a document holds becomes code nowhere: not in front matter, expressions, attributes or HTML.
TEST_F(DocHtml, textsOfADocumentStayTexts) {
    const Outcome run = runOn(folder.write("api.json",
                                           R"~({"openapi": "3.1.0",
 "info": {"title": "</script>{6*7}`${6*7}`\u0000\u2028\ud800\r\n---", "version": "\"}", "termsOfService": "javascript:x()",
          "description": "a {6*7} <script>x()</script> [b](javascript:x())"},
 "servers": [{"url": "/"}],
 "externalDocs": {"url": "data:text/html,x", "description": "<b>{x}</b>"},
 "paths": {"/": {"get": {"operationId": "'---\nimport x from 'y';//?", "summary": "{x}", "responses": {}}}},
 "components": {"schemas": {"---'`{}#?": {}}}})~"),
                              "");
    EXPECT_EQ(run.failure, "");
    const std::string overview = run.file("src/components/Overview.astro");
    EXPECT_THAT(overview,
                HasSubstr(R"(title={"\u003c/script>{6*7}`${6*7}`\u0000\u2028?\r\n---"} version={"\"}"})"));
    EXPECT_THAT(overview, HasSubstr(R"~( termsOfServiceText={"javascript:x()"})~"));
    EXPECT_THAT(overview,
                HasSubstr(R"~(set:html={"<p>a &lcub;6*7&rcub; &lt;script&gt;x()&lt;/script&gt; b</p>\n"})~"));
    EXPECT_THAT(overview, HasSubstr("<ExternalLink slot=\"externalDocs\" hrefText={\"data:text/html,x\"}>\n"
                                    "    &lt;b&gt;&lcub;x&rcub;&lt;/b&gt;\n"));
    EXPECT_THAT(run.file("src/pages/index.astro"),
                HasSubstr("import Operation___importXFrom_y___ from "
                          "'@components/operations/\\'_importXFrom\\'y\\';_.astro';\n"
                          "import Resource__________ from '@components/schemas/---\\'`{}__.astro';\n"));
}

} // namespace
} // namespace specloom::openapi_generator::doc_html
