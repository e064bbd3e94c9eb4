#pragma once

#include "openapi/node.h"

#include <utility> // std::move

namespace specloom::openapi {

/// XML Object (OpenAPI 3.1.0, section 4.8.26).
class XML final : public Node {
  public:
    explicit XML(Node* parent) : Node(parent, NodeType::XML) {}

    [[nodiscard]] std::optional<std::string_view> name() const { return name_.get(); }
    void setName(Text name) { name_ = std::move(name); }
    [[nodiscard]] std::optional<std::string_view> namespaceUri() const { return namespaceUri_.get(); }
    void setNamespaceUri(Text namespaceUri) { namespaceUri_ = std::move(namespaceUri); }
    [[nodiscard]] std::optional<std::string_view> prefix() const { return prefix_.get(); }
    void setPrefix(Text prefix) { prefix_ = std::move(prefix); }
    [[nodiscard]] std::optional<bool> attribute() const { return attribute_; }
    void setAttribute(std::optional<bool> attribute) { attribute_ = attribute; }
    [[nodiscard]] std::optional<bool> wrapped() const { return wrapped_; }
    void setWrapped(std::optional<bool> wrapped) { wrapped_ = wrapped; }

  private:
    Text name_;
    Text namespaceUri_;
    Text prefix_;
    std::optional<bool> attribute_;
    std::optional<bool> wrapped_;
};

} // namespace specloom::openapi
