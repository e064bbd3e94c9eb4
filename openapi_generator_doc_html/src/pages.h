#pragma once

#include "openapi_generator_doc_html/part.h"

#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::move
#include <vector>      // std::vector

// The pages of a site. Each has the frame that the template package gives, and shows components.
namespace specloom::openapi_generator::doc_html {

class Page : public Part {
  protected:
    /// What distinguishes a page: its template and the text of its title, in which "{}" is for nameInTitle().
    struct Kind {
        std::string_view templateName;
        std::string_view title;
    };

    Page(Context& context, SourceFile& file, const Kind& kind, Locale locale)
        : Part(context, file, kind.templateName, std::move(locale)), title_(kind.title) {}

    void collect(jv::JV& data) final;

    /// The URL of this page in a locale.
    [[nodiscard]] virtual std::string urlIn(const Locale& locale) const = 0;
    [[nodiscard]] virtual std::string nameInTitle() const { return {}; }
    /// Adds what the page shows.
    virtual void collectBody(jv::JV& /*data*/) {}

    /// Append a component to "imports"; give what it is called.
    std::string importOperation(const openapi::OperationRef& ref, jv::JV& data) const;
    std::string importResource(std::string_view schema, jv::JV& data) const;
    void importOverview(jv::JV& data) const;
    /// Sets an array of the components of operations, which it imports. `target` may be `data`.
    void setOperations(const std::vector<openapi::OperationRef>& operations, jv::JV& target,
                       jv::JV& data) const;
    /// Sets "operationGroups" and "operations".
    void setGroups(jv::JV& data) const;
    /// Sets "resources".
    void setResources(jv::JV& data) const;

  private:
    void setAttributes(jv::JV& html) const;
    /// The page in all languages, as an object of JavaScript.
    [[nodiscard]] std::string localeSelectorData() const;

    std::string_view title_;
};

class OverviewPage final : public Page {
  public:
    OverviewPage(Context& context, SourceFile& file, Locale locale)
        : Page(context, file, {"overview_page.jinja", "Overview"}, std::move(locale)) {}

  protected:
    [[nodiscard]] std::string urlIn(const Locale& locale) const override;
    void collectBody(jv::JV& data) override { importOverview(data); }
};

class OperationPage final : public Page {
  public:
    OperationPage(Context& context, SourceFile& file, const openapi::OperationRef& ref, Locale locale)
        : Page(context, file, {"operation_page.jinja", "Operation {}"}, std::move(locale)), ref_(ref) {}

  protected:
    [[nodiscard]] std::string nameInTitle() const override { return operationKey(ref_); }
    [[nodiscard]] std::string urlIn(const Locale& locale) const override;
    void collectBody(jv::JV& data) override;

  private:
    openapi::OperationRef ref_;
};

class OperationGroupPage final : public Page {
  public:
    /// `tag` and `operations` outlive the part.
    OperationGroupPage(Context& context, SourceFile& file, const std::string& tag,
                       const std::vector<openapi::OperationRef>& operations, Locale locale)
        : Page(context, file, {"operations_page.jinja", "Operations {}"}, std::move(locale)), tag_(tag),
          operations_(&operations) {}

  protected:
    [[nodiscard]] std::string nameInTitle() const override { return std::string(texts().translate(tag_)); }
    [[nodiscard]] std::string urlIn(const Locale& locale) const override;
    void collectBody(jv::JV& data) override { setOperations(*operations_, data, data); }

  private:
    std::string_view tag_;
    const std::vector<openapi::OperationRef>* operations_;
};

class OperationIndexPage final : public Page {
  public:
    OperationIndexPage(Context& context, SourceFile& file, Locale locale)
        : Page(context, file, {"operation_index_page.jinja", "Operations"}, std::move(locale)) {}

  protected:
    [[nodiscard]] std::string urlIn(const Locale& locale) const override;
    void collectBody(jv::JV& data) override { setGroups(data); }
};

class UngroupedOperationsPage final : public Page {
  public:
    /// `operations` outlive the part.
    UngroupedOperationsPage(Context& context, SourceFile& file,
                            const std::vector<openapi::OperationRef>& operations, Locale locale)
        : Page(context, file, {"operations_page.jinja", "Operations (ungrouped)"}, std::move(locale)),
          operations_(&operations) {}

  protected:
    [[nodiscard]] std::string urlIn(const Locale& locale) const override;
    void collectBody(jv::JV& data) override { setOperations(*operations_, data, data); }

  private:
    const std::vector<openapi::OperationRef>* operations_;
};

class ResourcePage final : public Page {
  public:
    /// `schema` outlives the part.
    ResourcePage(Context& context, SourceFile& file, std::string_view schema, Locale locale)
        : Page(context, file, {"resource_page.jinja", "Resource {}"}, std::move(locale)), schema_(schema) {}

  protected:
    [[nodiscard]] std::string nameInTitle() const override { return std::string(schema_); }
    [[nodiscard]] std::string urlIn(const Locale& locale) const override;
    void collectBody(jv::JV& data) override;

  private:
    std::string_view schema_;
};

class ResourceIndexPage final : public Page {
  public:
    ResourceIndexPage(Context& context, SourceFile& file, Locale locale)
        : Page(context, file, {"resource_index_page.jinja", "Resources"}, std::move(locale)) {}

  protected:
    [[nodiscard]] std::string urlIn(const Locale& locale) const override;
    void collectBody(jv::JV& data) override { setResources(data); }
};

class SearchPage final : public Page {
  public:
    SearchPage(Context& context, SourceFile& file, Locale locale)
        : Page(context, file, {"search_page.jinja", "Search"}, std::move(locale)) {}

  protected:
    [[nodiscard]] std::string urlIn(const Locale& locale) const override;
    void collectBody(jv::JV& data) override;
};

/// Everything on one page.
class SinglePage final : public Page {
  public:
    SinglePage(Context& context, SourceFile& file, Locale locale)
        : Page(context, file, {"single_page.jinja", "Index"}, std::move(locale)) {}

  protected:
    [[nodiscard]] std::string urlIn(const Locale& locale) const override;
    void collectBody(jv::JV& data) override;
};

/// A frame for what its reader writes.
class ChangelogPage final : public Page {
  public:
    ChangelogPage(Context& context, SourceFile& file, Locale locale)
        : Page(context, file, {"changelog_page.jinja", "Changelog"}, std::move(locale)) {}

  protected:
    [[nodiscard]] std::string urlIn(const Locale& locale) const override;
};

} // namespace specloom::openapi_generator::doc_html
