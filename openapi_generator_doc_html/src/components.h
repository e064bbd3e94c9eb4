#pragma once

#include "openapi_generator_doc_html/part.h"

#include <string_view> // std::string_view

// The components of a site that tell about the document.
namespace specloom::openapi_generator::doc_html {

/// All about an operation.
class Operation final : public Part {
  public:
    Operation(Context& context, SourceFile& file, const openapi::OperationRef& ref, Locale locale)
        : Part(context, file, "operation.jinja", std::move(locale)), ref_(ref) {}

  protected:
    void collect(jv::JV& data) override;

  private:
    [[nodiscard]] std::string attributes() const;
    void collectSecurity(jv::JV& data) const;
    void collectParameters(jv::JV& data) const;
    void collectRequestBody(jv::JV& data) const;
    void collectResponses(jv::JV& data) const;

    openapi::OperationRef ref_;
};

/// Links to the schemas that an operation uses.
class OperationUsage final : public Part {
  public:
    OperationUsage(Context& context, SourceFile& file, const openapi::OperationRef& ref, Locale locale)
        : Part(context, file, "operation_usage.jinja", std::move(locale)), ref_(ref) {}

  protected:
    void collect(jv::JV& data) override;

  private:
    openapi::OperationRef ref_;
};

/// All about a schema of the components.
class Resource final : public Part {
  public:
    /// `schema` is the entry, which may be a reference.
    Resource(Context& context, SourceFile& file, std::string_view name, const openapi::Node& schema,
             Locale locale)
        : Part(context, file, "resource.jinja", std::move(locale)), name_(name), schema_(&schema) {}

  protected:
    void collect(jv::JV& data) override;

  private:
    std::string_view name_;
    const openapi::Node* schema_;
};

/// Links to the operations that use a schema.
class ResourceUsage final : public Part {
  public:
    ResourceUsage(Context& context, SourceFile& file, std::string_view name, Locale locale)
        : Part(context, file, "resource_usage.jinja", std::move(locale)), name_(name) {}

  protected:
    void collect(jv::JV& data) override;

  private:
    std::string_view name_;
};

/// What the document says about the whole interface.
class Overview final : public Part {
  public:
    Overview(Context& context, SourceFile& file, Locale locale)
        : Part(context, file, "overview.jinja", std::move(locale)) {}

  protected:
    void collect(jv::JV& data) override;

  private:
    [[nodiscard]] std::string attributes() const;
    void collectServers(jv::JV& data) const;
    void collectTags(jv::JV& data) const;
    void collectSecuritySchemes(jv::JV& data) const;
    void addExternalDocs(const openapi::ExternalDocumentation* docs, jv::JV& data) const;
};

} // namespace specloom::openapi_generator::doc_html
