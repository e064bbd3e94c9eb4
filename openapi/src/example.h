#pragma once

#include "openapi/node.h"

#include <utility> // std::move

namespace specloom::openapi {

/// Example Object (OpenAPI 3.1.0, section 4.8.19).
class Example final : public Node {
  public:
    explicit Example(Node* parent) : Node(parent, NodeType::Example) {}

    [[nodiscard]] std::optional<std::string_view> summary() const { return summary_.get(); }
    void setSummary(Text summary) { summary_ = std::move(summary); }
    [[nodiscard]] std::optional<std::string_view> description() const { return description_.get(); }
    void setDescription(Text description) { description_ = std::move(description); }
    /// Null when there is none.
    [[nodiscard]] const jv::JV* value() const { return value_.get(); }
    void setValue(Value value) { value_ = std::move(value); }
    [[nodiscard]] std::optional<std::string_view> externalValue() const { return externalValue_.get(); }
    void setExternalValue(Text externalValue) { externalValue_ = std::move(externalValue); }

  private:
    Text summary_;
    Text description_;
    Text externalValue_;
    Value value_;
};

} // namespace specloom::openapi
