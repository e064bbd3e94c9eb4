#include "openapi_generator_doc_html/configuration.h"

#include "configuration/section.h"
#include "foundation/validators/validators.h"
#include "openapi_generator/config_error.h"

#include <algorithm> // std::find

namespace specloom::openapi_generator::doc_html {
namespace {

using configuration::Choices;
using configuration::Section;

constexpr Choices<OperationGranularity, 3> operationGranularities{
    {{"merge", OperationGranularity::Merge},
     {"group", OperationGranularity::Group},
     {"separate", OperationGranularity::Separate}}};
constexpr Choices<ResourceGranularity, 2> resourceGranularities{
    {{"merge", ResourceGranularity::Merge}, {"separate", ResourceGranularity::Separate}}};
constexpr Choices<std::string_view, 5> operationItemLayouts{{{"method_url_summary", "method-url-summary"},
                                                             {"url_method_summary", "url-method-summary"},
                                                             {"method_url", "method-url"},
                                                             {"url_method", "url-method"},
                                                             {"summary", "summary"}}};

void readText(const Section& section, std::string_view key, std::string& target) {
    if (const auto text = section.textIfString(key))
        target = *text;
}

void readText(const Section& section, std::string_view key, std::optional<std::string>& target) {
    if (const auto text = section.textIfString(key))
        target = *text;
}

void readFlag(const Section& section, std::string_view key, bool& target) {
    target = section.boolean(key).value_or(target);
}

/// A key of another kind counts as absent.
template <typename T, std::size_t count>
void readChoice(const Section& section, std::string_view key, const Choices<T, count>& choices,
                MessageFormat<std::string_view> unknown, T& target) {
    if (section.textIfString(key))
        target = configuration::choiceOf(*section.get(key), choices, unknown);
}

void readLocales(const Section& section, std::vector<std::string>& locales) {
    const jv::JV* value = section.get("locales");
    if (value == nullptr)
        return;
    const auto elements = section.elements("locales");
    if (elements.empty())
        throw ConfigError("Locales array cannot be empty", value);
    for (const jv::JV* element : elements) {
        const std::string locale(configuration::textOf(*element, "Locale must be a string"));
        if (!isLanguageCode(locale))
            throw ConfigError("Not a valid ISO 639-1 language code", element);
        if (std::find(locales.begin(), locales.end(), locale) == locales.end())
            locales.push_back(locale);
    }
}

void readI18n(const Section& section, Configuration& configuration) {
    std::vector<std::string>& locales = configuration.locales;
    readLocales(section, locales);
    if (!locales.empty()) {
        configuration.defaultLocale = section.textIfString("default_locale").value_or(locales.front());
        if (std::find(locales.begin(), locales.end(), *configuration.defaultLocale) == locales.end())
            throw ConfigError("Value of the default_locale is not in the locales array",
                              section.get("default_locale"));
    }
    readFlag(section, "prefix_default_locale", configuration.prefixDefaultLocale);
    if (configuration.prefixDefaultLocale && !configuration.defaultLocale)
        throw ConfigError("When prefix_defule_locale is used, default_locale must also be set",
                          section.get("prefix_default_locale"));
}

void readRequestCodeExamples(const jv::JV& value, RequestCodeExamples& examples) {
    if (value.isBoolean()) {
        examples = {.curl = value.boolean(), .vanillaJs = value.boolean()};
        return;
    }
    if (!value.isArray())
        throw ConfigError("request_code_examples must be an array or a boolean", &value);
    examples = {.curl = false, .vanillaJs = false};
    constexpr Choices<bool RequestCodeExamples::*, 2> variants{
        {{"curl", &RequestCodeExamples::curl}, {"vanilla_js", &RequestCodeExamples::vanillaJs}}};
    for (const jv::JV* element : value.elements())
        examples.*configuration::choiceOf(*element, variants, "Request code example must be a string",
                                          "Invalid request body example variant") = true;
}

} // namespace

void readConfiguration(const jv::JV& root, Configuration& configuration) {
    const Section section = configuration::pluginSection(root, "doc_html");
    readText(section, "html_title_prefix", configuration.htmlTitlePrefix);
    const Section meta = section.section("html_meta");
    readText(meta, "author", configuration.htmlAuthor);
    readText(meta, "description", configuration.htmlDescription);
    readText(meta, "generator", configuration.htmlGenerator);
    readText(meta, "keywords", configuration.htmlKeywords);
    readFlag(section, "pages", configuration.pages);
    readChoice(section, "operations", operationGranularities, "Unrecognized operation granularity",
               configuration.operationGranularity);
    readChoice(section, "resources", resourceGranularities, "Unrecognized resource granularity",
               configuration.resourceGranularity);
    readFlag(section, "search", configuration.searchPage);
    readFlag(section, "changelog", configuration.changelogPage);
    configuration.openapiSchema = readSchemaCopy(section).value_or(configuration.openapiSchema);
    const Section templates = section.section("template");
    readText(templates, "package", configuration.templatePackage);
    readText(templates, "package", configuration.templateDir);
    readText(templates, "version", configuration.templateVersion);
    const Section sidebar = section.section("sidebar");
    if (sidebar.get("items") != nullptr) {
        static_cast<void>(sidebar.elements("items")); // refuses what is no array
        configuration.sidebarItems = readSidebarItems(*sidebar.get("items"));
    }
    readChoice(sidebar, "operation_item_layout", operationItemLayouts, "Invalid operation item layout",
               configuration.operationItemLayout);
    readI18n(section.section("i18n"), configuration);
    if (const jv::JV* examples = section.get("request_code_examples"))
        readRequestCodeExamples(*examples, configuration.requestCodeExamples);
    readFlag(section, "use_request_body_examples", configuration.useRequestBodyExamples);
    readFlag(section, "generate_response_schema", configuration.generateResponseSchema);
    readFlag(section, "use_response_examples", configuration.useResponseExamples);
    readFlag(section, "fail_on_generator_error", configuration.failOnGeneratorError);
}

} // namespace specloom::openapi_generator::doc_html
