#pragma once

#include "code_morph_astro/project.h"
#include "openapi_generator/operation_grouper.h"
#include "openapi_generator/plugin_context.h"
#include "openapi_generator/translations.h"
#include "openapi_generator_doc_html/configuration.h"
#include "openapi_generator_doc_html/document/usages.h"
#include "openapi_generator_doc_html/naming.h"
#include "openapi_generator_doc_html/property_lines.h"
#include "openapi_generator_doc_html/sample_lines.h"
#include "openapi_generator_doc_html/texts.h"
#include "openapi_generator_doc_html/urls.h"
#include "openapi_generator_doc_html/usage_entries.h"
#include "templating/forms.h"
#include "templating/template_set.h"

#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_generator::doc_html {

/// What is known of the document once the configuration is read.
struct Site {
    Site(const openapi::OpenAPI& document, const Configuration& configuration,
         const Translations& translations, templating::Forms& forms);

    DocumentNames names;
    Urls urls;
    Texts texts;
    Usages usages;
    PropertyLines propertyLines;
    UsageEntries usageEntries;
    SampleLines sampleLines;
    /// The operations as pages and the sidebar group them: by their first declared tag, or not at all where
    /// each has a page of its own.
    OperationGrouper grouper;
};

/// What the plugin and its parts share.
struct Context : PluginContextOf<code_morph::astro::Project> {
    explicit Context(FileSystem& fileSystem);

    /// Takes the document, once the configuration is read.
    void begin(const openapi::OpenAPI& root, const Translations& translations);

    /// The path by which a component of the site is imported.
    [[nodiscard]] std::string importPath(std::string_view folder, std::string_view name,
                                         const Locale& locale) const;

    Configuration configuration;
    templating::TemplateSet templates;
    templating::Forms forms{templates};
    std::optional<Site> site; ///< none before the parts are made
};

} // namespace specloom::openapi_generator::doc_html
