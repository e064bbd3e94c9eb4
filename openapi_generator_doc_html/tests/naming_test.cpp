#include "openapi_generator_doc_html/naming.h"
#include "openapi_generator_doc_html/urls.h"
#include "test_support/failure.h"
#include "test_support/read_text.h"

#include <iterator> // std::size
#include <memory>   // std::unique_ptr
#include <string>   // std::string
#include <utility>  // std::pair

#include <gtest/gtest.h>

namespace specloom::openapi_generator::doc_html {
namespace {

class DocHtmlNames : public testing::Test {
  protected:
    [[nodiscard]] static std::string textOf(const ArtefactNames& names) {
        return names.key + " | " + names.symbol + " | " + names.anchor + " | " + names.page;
    }
    /// The URLs of an operation with a tag, one without, a tag, a schema and the overview, in a language
    /// beside the default one.
    [[nodiscard]] std::string urlsWith(OperationGranularity operations, ResourceGranularity resources,
                                       const Locale& locale) const {
        Configuration configuration;
        configuration.operationGranularity = operations;
        configuration.resourceGranularity = resources;
        if (locale) {
            configuration.locales = {"en", "pl"};
            configuration.defaultLocale = "en";
        }
        const Urls urls(configuration, names);
        std::string text;
        for (const std::size_t index : {1u, 0u})
            text += urls.ofOperation(names.operations()[index], locale) + " ";
        if (operations != OperationGranularity::Separate)
            text += urls.ofTag("Pet Store", locale) + " ";
        return text + urls.ofResource("a.b", locale) + " " + urls.ofOverview(locale);
    }

    const std::unique_ptr<openapi::ReadResult> read = test_support::readText(
        R"(openapi: 3.1.0
info: {title: t, version: v}
tags: [{name: Pet Store}, {name: pet-store}, {name: Index}, {name: 日本}]
paths:
  "/a?b*#\"\\ %\u0001": {get: {responses: {}}}
  /pets: {get: {operationId: list.pets, tags: [Pet Store], responses: {}},
          put: {operationId: list-pets, tags: [pet-store], responses: {}},
          post: {operationId: list$pets, responses: {}}}
  /pets/{id}: {get: {tags: [Index], responses: {}}, head: {operationId: '_', responses: {}}}
  /pets_{id}: {get: {tags: [日本], responses: {}}}
components: {schemas: {a.b: {}, a/b: {}, a-b: {}, 'List<Pet>': {}, Größe: {}, 日本: {}, 東京: {}, index: {}}}
)",
        jv::DocumentFormat::Yaml);
    const DocumentNames names{read->root()};
};

TEST_F(DocHtmlNames, ofOperationsAreNumberedWhereTheyFallTogether) {
    const std::string expected[] = {
        "_a_b____ %__get | _a_b________get | operation_get__a?b*#\"\\ %\x01 | a-b-get",
        "List.pets | List_pets | operation_get__pets | list-pets",
        "ListPets | ListPets | operation_put__pets | list-pets2",
        "List$pets | List_pets2 | operation_post__pets | list-pets3",
        "_pets__id__get | _pets__id__get | operation_get__pets__id_ | pets-id-get",
        "2 |  | operation_head__pets__id_ | 2",
        "_pets__id__get2 | _pets__id__get2 | operation_get__pets__id_2 | pets-id-get2",
    };
    ASSERT_EQ(names.operations().size(), std::size(expected));
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        EXPECT_EQ(textOf(names.of(names.operations()[i])), expected[i]);
        EXPECT_EQ(names.indexOf(names.operations()[i]), i);
    }
}

TEST_F(DocHtmlNames, ofSchemasAndTagsAreNumberedWhereTheyFallTogether) {
    const std::pair<std::string, std::string> schemas[] = {
        {"a-b", "a-b | a_b | resource_a-b | a-b"},
        {"a.b", "a_b | a_b2 | resource_a_b | a-b2"},
        {"a/b", "a_b2 | a_b3 | resource_a_b2 | a-b3"},
        {"List<Pet>", "List<Pet> | List_Pet_ | resource_List<Pet> | list-pet"},
        {"Größe", "Größe | Gr__e | resource_Größe | gr-e"},
        {"日本", "日本 | __ | resource_日本 | 2"},
        {"東京", "東京 | __2 | resource_東京 | 3"},
        {"index", "index | index | resource_index | index2"},
    };
    for (const auto& [name, expected] : schemas)
        EXPECT_EQ(textOf(names.ofSchema(name)), expected);
    const std::pair<std::string, std::string> tags[] = {{"Pet Store", "tag_pet_store pet_store"},
                                                        {"pet-store", "tag_pet_store2 pet_store2"},
                                                        {"Index", "tag_index index2"},
                                                        {"日本", "tag_ 2"}};
    for (const auto& [name, expected] : tags)
        EXPECT_EQ(names.ofTag(name).anchor + " " + names.ofTag(name).page, expected);
}

TEST_F(DocHtmlNames, makeUrls) {
    using O = OperationGranularity;
    using R = ResourceGranularity;
    EXPECT_EQ(urlsWith(O::Merge, R::Merge, {}), "#operation_get__pets #operation_get__a?b*%23%22%5C%20%25%01 "
                                                "#tag_pet_store #resource_a_b /#overview");
    EXPECT_EQ(urlsWith(O::Merge, R::Merge, "en"), urlsWith(O::Merge, R::Merge, {}));
    EXPECT_EQ(urlsWith(O::Merge, R::Merge, "pl"),
              "/pl#operation_get__pets /pl#operation_get__a?b*%23%22%5C%20%25%01 /pl#tag_pet_store "
              "/pl#resource_a_b "
              "/pl#overview");
    EXPECT_EQ(urlsWith(O::Merge, R::Separate, {}),
              "/operations#operation_get__pets /operations#operation_get__a?b*%23%22%5C%20%25%01 "
              "/operations#tag_pet_store /resources/a-b2 /index");
    EXPECT_EQ(urlsWith(O::Group, R::Merge, "pl"),
              "/pl/groups/pet_store#operation_get__pets /pl/operations#operation_get__a?b*%23%22%5C%20%25%01 "
              "/pl/groups/pet_store /pl/resources#resource_a_b /pl/index");
    EXPECT_EQ(urlsWith(O::Separate, R::Separate, "pl"),
              "/pl/operations/list-pets /pl/operations/a-b-get /pl/resources/a-b2 /pl/index");
}

TEST_F(DocHtmlNames, havePathsOfTheirLocales) {
    Configuration configuration;
    EXPECT_EQ(filePath("src/components", localeSegment(configuration, {}), "operations", "A", true),
              "src/components/operations/A.astro");
    EXPECT_EQ(test_support::failureOf([&] { return localeSegment(configuration, "pl"); }),
              "Not in multi-language mode");
    configuration.locales = {"en", "pl"};
    configuration.defaultLocale = "en";
    EXPECT_EQ(localeSegment(configuration, "en"), "");
    EXPECT_EQ(filePath("@components", localeSegment(configuration, "pl"), "", "Sidebar", false),
              "@components/pl/Sidebar");
    configuration.prefixDefaultLocale = true;
    EXPECT_EQ(localeSegment(configuration, "en"), "en");
    EXPECT_EQ(DocumentNames(read->root()).operations().size(), 7u);
}

} // namespace
} // namespace specloom::openapi_generator::doc_html
