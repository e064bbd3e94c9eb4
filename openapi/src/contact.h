#pragma once

#include "openapi/node.h"

#include <utility> // std::move

namespace specloom::openapi {

/// Contact Object (OpenAPI 3.1.0, section 4.8.3).
class Contact final : public Node {
  public:
    explicit Contact(Node* parent) : Node(parent, NodeType::Contact) {}

    [[nodiscard]] std::optional<std::string_view> name() const { return name_.get(); }
    void setName(Text name) { name_ = std::move(name); }
    [[nodiscard]] std::optional<std::string_view> url() const { return url_.get(); }
    void setUrl(Text url) { url_ = std::move(url); }
    [[nodiscard]] std::optional<std::string_view> email() const { return email_.get(); }
    void setEmail(Text email) { email_ = std::move(email); }

  private:
    Text name_;
    Text url_;
    Text email_;
};

} // namespace specloom::openapi
