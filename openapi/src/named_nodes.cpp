#include "openapi/named_nodes.h"

#include <utility> // std::move

namespace specloom::openapi {

void NamedNodes::reserve(std::size_t count) {
    items_.reserve(count);
    names_.reserve(count);
}

const Node* NamedNodes::find(std::string_view name) const noexcept {
    const NodePointer* node = items_.find(name);
    return node == nullptr ? nullptr : node->get();
}

Node* NamedNodes::find(std::string_view name) noexcept {
    return const_cast<Node*>(static_cast<const NamedNodes*>(this)->find(name));
}

std::optional<std::string_view> NamedNodes::nameOf(const Node* node) const {
    const auto found = names_.find(node);
    return found == names_.end() ? std::nullopt : std::optional(found->second);
}

Node& NamedNodes::add(Text name, NodePointer node) {
    names_.emplace(node.get(), name.view());
    return *items_.add(std::move(name), std::move(node));
}

void NamedNodes::rename(std::string_view oldName, Text newName) {
    NodePointer node = items_.extract(oldName);
    names_.erase(node.get());
    add(std::move(newName), std::move(node));
}

} // namespace specloom::openapi
