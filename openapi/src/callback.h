#pragma once

#include "openapi/path_item.h"

namespace specloom::openapi {

/// Callback Object (OpenAPI 3.1.0, section 4.8.18): path items, or references to one, by runtime expression.
class Callback final : public Node {
  public:
    explicit Callback(Node* parent) : Node(parent, NodeType::Callback) {}

    [[nodiscard]] const NodeMap& items() const { return items_; }
    [[nodiscard]] const PathItem* find(std::string_view expression) const {
        return resolveTo<PathItem>(items_.find(expression));
    }
    /// Both throw std::runtime_error "Path item already exists".
    PathItem* createPathItem(Text expression);
    Reference* addPathItemReference(Text expression, Node& target);

  private:
    NodeMap items_;
};

} // namespace specloom::openapi
