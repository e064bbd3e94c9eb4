#pragma once

#include "openapi/examples.h"
#include "openapi/parameter_style.h"
#include "openapi/schema_or_content.h"

namespace specloom::openapi {

/// Header Object (OpenAPI 3.1.0, section 4.8.21). Its name is the key under which it stands.
class Header final : public Node {
  public:
    explicit Header(Node* parent) : Node(parent, NodeType::Header) {}

    [[nodiscard]] std::optional<std::string_view> description() const { return description_.get(); }
    void setDescription(Text description) { description_ = std::move(description); }
    [[nodiscard]] std::optional<bool> required() const { return required_; }
    void setRequired(std::optional<bool> required) { required_ = required; }
    [[nodiscard]] std::optional<bool> deprecated() const { return deprecated_; }
    void setDeprecated(std::optional<bool> deprecated) { deprecated_ = deprecated; }
    [[nodiscard]] std::optional<bool> allowEmptyValue() const { return allowEmptyValue_; }
    void setAllowEmptyValue(std::optional<bool> allowEmptyValue) { allowEmptyValue_ = allowEmptyValue; }
    [[nodiscard]] std::optional<ParameterStyle> style() const { return style_; }
    void setStyle(std::optional<ParameterStyle> style) { style_ = style; }
    [[nodiscard]] std::optional<bool> explode() const { return explode_; }
    void setExplode(std::optional<bool> explode) { explode_ = explode; }
    [[nodiscard]] std::optional<bool> allowReserved() const { return allowReserved_; }
    void setAllowReserved(std::optional<bool> allowReserved) { allowReserved_ = allowReserved; }

    [[nodiscard]] const Examples& examples() const { return examples_; }
    [[nodiscard]] Examples& examples() { return examples_; }
    [[nodiscard]] const SchemaOrContent& value() const { return value_; }
    [[nodiscard]] SchemaOrContent& value() { return value_; }
    /// The resolved schema, or null.
    [[nodiscard]] const Schema* schema() const { return value_.schema(); }

  private:
    std::optional<bool> required_;
    std::optional<bool> deprecated_;
    std::optional<bool> allowEmptyValue_;
    std::optional<bool> explode_;
    std::optional<bool> allowReserved_;
    std::optional<ParameterStyle> style_;
    Text description_;
    Examples examples_;
    SchemaOrContent value_;
};

} // namespace specloom::openapi
