#pragma once

#include "openapi/node.h"

#include <utility> // std::move

namespace specloom::openapi {

/// External Documentation Object (OpenAPI 3.1.0, section 4.8.11).
class ExternalDocumentation final : public Node {
  public:
    ExternalDocumentation(Node* parent, Text url)
        : Node(parent, NodeType::ExternalDocumentation), url_(std::move(url)) {}

    [[nodiscard]] std::string_view url() const { return url_.view(); }
    void setUrl(Text url) { url_ = std::move(url); }
    [[nodiscard]] std::optional<std::string_view> description() const { return description_.get(); }
    void setDescription(Text description) { description_ = std::move(description); }

  private:
    Text url_;
    Text description_;
};

} // namespace specloom::openapi
