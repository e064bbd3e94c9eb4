#pragma once

#include "openapi/header.h"

namespace specloom::openapi {

/// Encoding Object (OpenAPI 3.1.0, section 4.8.15).
class Encoding final : public Node {
  public:
    explicit Encoding(Node* parent) : Node(parent, NodeType::Encoding) {}

    [[nodiscard]] std::optional<std::string_view> contentType() const { return contentType_.get(); }
    void setContentType(Text contentType) { contentType_ = std::move(contentType); }
    /// Headers or references to one.
    [[nodiscard]] const NodeMap& headers() const { return headers_; }
    /// Both throw std::runtime_error "Header already exists".
    Header* createHeader(Text name);
    Reference* addHeaderReference(Text name, Node& target);
    [[nodiscard]] std::optional<ParameterStyle> style() const { return style_; }
    void setStyle(std::optional<ParameterStyle> style) { style_ = style; }
    [[nodiscard]] std::optional<bool> explode() const { return explode_; }
    void setExplode(std::optional<bool> explode) { explode_ = explode; }
    [[nodiscard]] std::optional<bool> allowReserved() const { return allowReserved_; }
    void setAllowReserved(std::optional<bool> allowReserved) { allowReserved_ = allowReserved; }

  private:
    Text contentType_;
    NodeMap headers_;
    std::optional<ParameterStyle> style_;
    std::optional<bool> explode_;
    std::optional<bool> allowReserved_;
};

} // namespace specloom::openapi
