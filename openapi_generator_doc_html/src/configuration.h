#pragma once

#include "jv/jv.h"
#include "openapi_generator/schema_file.h"
#include "openapi_generator_doc_html/sidebar_item.h"

#include <cstdint>     // std::uint8_t
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_generator::doc_html {

/// How operations are spread over pages.
enum class OperationGranularity : std::uint8_t {
    Merge,    ///< all on one
    Group,    ///< one for each tag, and one for operations without
    Separate, ///< one for each
};

/// How the schemas of components are spread over pages.
enum class ResourceGranularity : std::uint8_t { Merge, Separate };

/// For which languages there are samples of requests.
struct RequestCodeExamples {
    bool curl = true;
    bool vanillaJs = true;
};

/// What is generated, and how.
struct Configuration {
    std::string packageName = "@loomwork/api-html-doc";
    std::string packageVersion = "0.1.0";
    std::optional<std::string> htmlTitlePrefix;
    std::optional<std::string> htmlAuthor;
    std::optional<std::string> htmlDescription;
    std::optional<std::string> htmlGenerator;
    std::optional<std::string> htmlKeywords;
    bool pages = true; ///< without them the output is a library of components
    OperationGranularity operationGranularity = OperationGranularity::Merge;
    ResourceGranularity resourceGranularity = ResourceGranularity::Merge;
    bool searchPage = true;
    bool changelogPage = false;
    SchemaCopy openapiSchema = false;
    std::string templatePackage = "@loomwork/spec-loom-doc-html-template"; ///< as a dependency
    std::string templateVersion = "^0.1.0";
    std::string templateDir = "@loomwork/spec-loom-doc-html-template"; ///< below node_modules
    std::vector<SidebarItem> sidebarItems = defaultSidebarItems();
    std::string_view operationItemLayout = "method-url-summary"; ///< as OperationItem takes it
    std::vector<std::string> locales;                            ///< each once
    std::optional<std::string> defaultLocale;                    ///< one of them, when there are any
    bool prefixDefaultLocale = false;
    RequestCodeExamples requestCodeExamples;
    bool useRequestBodyExamples = true;
    bool generateResponseSchema = true;
    bool useResponseExamples = true;
    bool failOnGeneratorError = false; ///< for later: a failure ends the run in any case

    /// Whether everything but search and changelog is on one page.
    [[nodiscard]] bool isSinglePage() const noexcept {
        return operationGranularity == OperationGranularity::Merge &&
               resourceGranularity == ResourceGranularity::Merge;
    }
};

/// Takes over the keys that "/commands/generate/doc_html" of a configuration has. Texts that are no strings
/// are ignored. Throws ConfigError
///   "Unrecognized operation granularity", "Unrecognized resource granularity", "Invalid operation item
///   layout", "Locales array cannot be empty", "Locale must be a string", "Not a valid ISO 639-1 language
///   code", "Value of the default_locale is not in the locales array", "When prefix_defule_locale is used,
///   default_locale must also be set", "Request code example must be a string", "Invalid request body example
///   variant", "request_code_examples must be an array or a boolean",
/// and what readSchemaCopy(), readSidebarItems() and Section throw.
void readConfiguration(const jv::JV& root, Configuration& configuration);

} // namespace specloom::openapi_generator::doc_html
