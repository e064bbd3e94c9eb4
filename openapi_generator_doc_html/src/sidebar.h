#pragma once

#include "openapi_generator_doc_html/part.h"

// The navigation of a site.
namespace specloom::openapi_generator::doc_html {

/// The items that the configuration lists.
class Sidebar final : public Part {
  public:
    Sidebar(Context& context, SourceFile& file, Locale locale)
        : Part(context, file, "sidebar.jinja", std::move(locale)) {}

  protected:
    void collect(jv::JV& data) override;
};

/// A link to each operation.
class SidebarOperations final : public Part {
  public:
    SidebarOperations(Context& context, SourceFile& file, Locale locale)
        : Part(context, file, "sidebar_operations.jinja", std::move(locale)) {}

  protected:
    void collect(jv::JV& data) override;

  private:
    [[nodiscard]] std::string entryOf(const openapi::OperationRef& ref) const;
};

/// A link to each schema.
class SidebarResources final : public Part {
  public:
    SidebarResources(Context& context, SourceFile& file, Locale locale)
        : Part(context, file, "sidebar_resources.jinja", std::move(locale)) {}

  protected:
    void collect(jv::JV& data) override;
};

} // namespace specloom::openapi_generator::doc_html
