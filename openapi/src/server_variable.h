#pragma once

#include "openapi/node.h"

#include <utility> // std::move
#include <vector>  // std::vector

namespace specloom::openapi {

/// Server Variable Object (OpenAPI 3.1.0, section 4.8.6).
class ServerVariable final : public Node {
  public:
    explicit ServerVariable(Node* parent) : Node(parent, NodeType::ServerVariable) {}

    [[nodiscard]] const std::vector<Text>& enumeration() const { return enumeration_; }
    void setEnumeration(std::vector<Text> enumeration) { enumeration_ = std::move(enumeration); }
    /// Empty until it is set.
    [[nodiscard]] std::string_view defaultValue() const { return defaultValue_.view(); }
    void setDefaultValue(Text value) { defaultValue_ = std::move(value); }
    [[nodiscard]] std::optional<std::string_view> description() const { return description_.get(); }
    void setDescription(Text description) { description_ = std::move(description); }

  private:
    std::vector<Text> enumeration_;
    Text defaultValue_;
    Text description_;
};

} // namespace specloom::openapi
