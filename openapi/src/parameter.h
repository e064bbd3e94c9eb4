#pragma once

#include "openapi/examples.h"
#include "openapi/parameter_style.h"
#include "openapi/schema_or_content.h"

namespace specloom::openapi {

enum class ParameterLocation : std::uint8_t { Path, Query, Header, Cookie };

/// "path", "query", "header" or "cookie".
[[nodiscard]] std::string_view parameterLocationName(ParameterLocation location);
/// Compares case-sensitively.
[[nodiscard]] std::optional<ParameterLocation> parameterLocationFromName(std::string_view name);

/// Parameter Object (OpenAPI 3.1.0, section 4.8.12); one class below for each location.
class Parameter : public Node {
  public:
    [[nodiscard]] std::string_view name() const { return name_.view(); }
    /// By the class.
    [[nodiscard]] ParameterLocation location() const;
    /// Whether a parameter of that location may have this style (OpenAPI 3.1.0, section 4.8.12.3).
    [[nodiscard]] static bool allowsStyle(ParameterLocation location, ParameterStyle style);

    [[nodiscard]] std::optional<std::string_view> description() const { return description_.get(); }
    void setDescription(Text description) { description_ = std::move(description); }
    /// What was written; isRequired() tells what holds.
    [[nodiscard]] std::optional<bool> required() const { return required_; }
    /// Whether callers must send it; path parameters always.
    [[nodiscard]] bool isRequired() const {
        return type() == NodeType::PathParameter || required_.value_or(false);
    }
    [[nodiscard]] std::optional<bool> deprecated() const { return deprecated_; }
    void setDeprecated(std::optional<bool> deprecated) { deprecated_ = deprecated; }
    [[nodiscard]] std::optional<ParameterStyle> style() const { return style_; }
    void setStyle(std::optional<ParameterStyle> style) { style_ = style; }
    [[nodiscard]] std::optional<bool> explode() const { return explode_; }
    void setExplode(std::optional<bool> explode) { explode_ = explode; }

    [[nodiscard]] const Examples& examples() const { return examples_; }
    [[nodiscard]] Examples& examples() { return examples_; }
    [[nodiscard]] const SchemaOrContent& value() const { return value_; }
    [[nodiscard]] SchemaOrContent& value() { return value_; }
    /// The resolved schema, or null.
    [[nodiscard]] const Schema* schema() const { return value_.schema(); }

  protected:
    Parameter(Node* parent, NodeType type, Text name) : Node(parent, type), name_(std::move(name)) {}

    /// Public in those that are not always required.
    void setRequired(std::optional<bool> required) { required_ = required; }

  private:
    friend class ParameterList; // renames

    std::optional<bool> required_;
    std::optional<bool> deprecated_;
    std::optional<bool> explode_;
    std::optional<ParameterStyle> style_;
    Text name_;
    Text description_;
    Examples examples_;
    SchemaOrContent value_;
};

/// Always required.
class PathParameter final : public Parameter {
  public:
    PathParameter(Node* parent, Text name) : Parameter(parent, NodeType::PathParameter, std::move(name)) {
        setRequired(true);
    }
};

class QueryParameter final : public Parameter {
  public:
    QueryParameter(Node* parent, Text name) : Parameter(parent, NodeType::QueryParameter, std::move(name)) {}

    using Parameter::setRequired;
    [[nodiscard]] std::optional<bool> allowEmptyValue() const { return allowEmptyValue_; }
    void setAllowEmptyValue(std::optional<bool> allowEmptyValue) { allowEmptyValue_ = allowEmptyValue; }
    [[nodiscard]] std::optional<bool> allowReserved() const { return allowReserved_; }
    void setAllowReserved(std::optional<bool> allowReserved) { allowReserved_ = allowReserved; }

  private:
    std::optional<bool> allowEmptyValue_;
    std::optional<bool> allowReserved_;
};

class HeaderParameter final : public Parameter {
  public:
    HeaderParameter(Node* parent, Text name)
        : Parameter(parent, NodeType::HeaderParameter, std::move(name)) {}

    using Parameter::setRequired;
};

class CookieParameter final : public Parameter {
  public:
    CookieParameter(Node* parent, Text name)
        : Parameter(parent, NodeType::CookieParameter, std::move(name)) {}

    using Parameter::setRequired;
};

} // namespace specloom::openapi
