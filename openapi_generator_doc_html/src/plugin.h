#pragma once

#include "openapi_generator/document_name.h"
#include "openapi_generator/plugin.h"
#include "openapi_generator_doc_html/urls.h"

#include <memory>      // std::unique_ptr
#include <string_view> // std::string_view

namespace specloom::code_morph::astro {
class SourceFile;
}

namespace specloom::openapi_generator::doc_html {

struct Context;

/// Makes the sources of a documentation site: an Astro project with a component for each operation and each
/// schema, and pages that show them. The look of the site is in a package of templates that the project
/// depends on.
class Plugin final : public openapi_generator::Plugin {
  public:
    explicit Plugin(PluginRunner& host);
    ~Plugin() override;

    void configure(const jv::JV& root) override;
    void configureDefaults() override;

  protected:
    void configureSelf() override;
    /// Throws std::runtime_error as refuseName() does for a name of which no file can be made, and what
    /// Project::createSourceFile() throws.
    void configureParts() override;
    void generateCode() override;

  private:
    using SourceFile = code_morph::astro::SourceFile;

    void addLocale(const Locale& locale);
    void addOperations(const Locale& locale);
    void addResources(const Locale& locale);
    void addPages(const Locale& locale);
    void addPagesOfOperations(const Locale& locale);
    void addPagesOfResources(const Locale& locale);
    void addSchemaCopy();
    void addProjectFiles();

    /// The file of a component or of a page. Names of the document are told when no file can have them.
    [[nodiscard]] SourceFile& component(std::string_view folder, std::string_view name, const Locale& locale);
    [[nodiscard]] SourceFile& component(std::string_view folder, std::string_view name, const Locale& locale,
                                        const DocumentName& origin);
    [[nodiscard]] SourceFile& page(std::string_view folder, std::string_view name, const Locale& locale);
    [[nodiscard]] SourceFile& page(std::string_view folder, std::string_view name, const Locale& locale,
                                   const DocumentName& origin);
    [[nodiscard]] DocumentName nameOfOperation(const openapi::OperationRef& ref) const;
    [[nodiscard]] DocumentName nameOfSchema(std::string_view name) const;

    std::unique_ptr<Context> context_;
};

} // namespace specloom::openapi_generator::doc_html
