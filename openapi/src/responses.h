#pragma once

#include "openapi/response.h"

namespace specloom::openapi {

/// Responses Object (OpenAPI 3.1.0, section 4.8.16): responses, or references to one, by status code, range
/// such as "4XX", or "default", in byte-wise order.
class Responses final : public Node {
  public:
    explicit Responses(Node* parent) : Node(parent, NodeType::Responses) {}

    [[nodiscard]] const NodeMap& items() const { return items_; }
    [[nodiscard]] NodeMap::const_iterator begin() const { return items_.begin(); }
    [[nodiscard]] NodeMap::const_iterator end() const { return items_.end(); }
    [[nodiscard]] std::size_t size() const { return items_.size(); }
    /// The resolved response under exactly that key, or null.
    [[nodiscard]] const Response* find(std::string_view code) const {
        return resolveTo<Response>(items_.find(code));
    }
    /// Both throw std::runtime_error "Response already exists".
    Response* createResponse(Text code);
    Reference* addResponseReference(Text code, Node& target);

  private:
    NodeMap items_;
};

} // namespace specloom::openapi
