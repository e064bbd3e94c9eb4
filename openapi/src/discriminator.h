#pragma once

#include "openapi/node.h"

#include <utility> // std::move

namespace specloom::openapi {

/// Discriminator Object (OpenAPI 3.1.0, section 4.8.25).
class Discriminator final : public Node {
  public:
    Discriminator(Node* parent, Text propertyName)
        : Node(parent, NodeType::Discriminator), propertyName_(std::move(propertyName)) {}

    [[nodiscard]] std::string_view propertyName() const { return propertyName_.view(); }
    void setPropertyName(Text name) { propertyName_ = std::move(name); }
    /// Schema names or references by value of the property.
    [[nodiscard]] const NameMap<Text>& mapping() const { return mapping_; }
    /// A value that is there already gets this schema.
    void setMapping(Text value, Text schema);

  private:
    Text propertyName_;
    NameMap<Text> mapping_;
};

} // namespace specloom::openapi
