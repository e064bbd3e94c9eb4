#pragma once

#include "openapi/external_documentation.h"

namespace specloom::openapi {

/// Tag Object (OpenAPI 3.1.0, section 4.8.22).
class Tag final : public Node {
  public:
    Tag(Node* parent, Text name) : Node(parent, NodeType::Tag), name_(std::move(name)) {}

    [[nodiscard]] std::string_view name() const { return name_.view(); }
    [[nodiscard]] std::optional<std::string_view> description() const { return description_.get(); }
    void setDescription(Text description) { description_ = std::move(description); }
    /// Null when there is none.
    [[nodiscard]] const ExternalDocumentation* externalDocs() const { return externalDocs_.get(); }
    [[nodiscard]] ExternalDocumentation* externalDocs() { return externalDocs_.get(); }
    /// Throws std::runtime_error "External docs already exist".
    ExternalDocumentation* createExternalDocs(Text url);

  private:
    Text name_;
    Text description_;
    std::unique_ptr<ExternalDocumentation> externalDocs_;
};

} // namespace specloom::openapi
