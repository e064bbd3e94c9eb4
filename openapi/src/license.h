#pragma once

#include "openapi/node.h"

#include <utility> // std::move

namespace specloom::openapi {

/// License Object (OpenAPI 3.1.0, section 4.8.4).
class License final : public Node {
  public:
    License(Node* parent, Text name) : Node(parent, NodeType::License), name_(std::move(name)) {}

    [[nodiscard]] std::string_view name() const { return name_.view(); }
    void setName(Text name) { name_ = std::move(name); }
    [[nodiscard]] std::optional<std::string_view> identifier() const { return identifier_.get(); }
    void setIdentifier(Text identifier) { identifier_ = std::move(identifier); }
    [[nodiscard]] std::optional<std::string_view> url() const { return url_.get(); }
    void setUrl(Text url) { url_ = std::move(url); }

  private:
    Text name_;
    Text identifier_;
    Text url_;
};

} // namespace specloom::openapi
