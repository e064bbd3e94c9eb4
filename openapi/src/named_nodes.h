#pragma once

#include "foundation/hash.h"
#include "openapi/node.h"

#include <functional>    // std::function
#include <unordered_map> // std::unordered_map

namespace specloom::openapi {

/// FNV-1a over the eight bytes of a node's address.
struct NodeHash {
    [[nodiscard]] std::size_t operator()(const Node* node) const noexcept {
        return static_cast<std::size_t>(fnv1a(reinterpret_cast<std::uintptr_t>(node), sizeof node));
    }
};

/// Nodes by name and names by node, of the entries as they are stored: a reference is an entry of its own.
class NamedNodes {
  public:
    using const_iterator = NodeMap::const_iterator;

    [[nodiscard]] const_iterator begin() const noexcept { return items_.begin(); }
    [[nodiscard]] const_iterator end() const noexcept { return items_.end(); }
    [[nodiscard]] std::size_t size() const noexcept { return items_.size(); }
    [[nodiscard]] bool empty() const noexcept { return items_.empty(); }
    void reserve(std::size_t count);

    /// The entry as stored, or null.
    [[nodiscard]] const Node* find(std::string_view name) const noexcept;
    [[nodiscard]] Node* find(std::string_view name) noexcept;
    /// The name of an entry; empty for any other node.
    [[nodiscard]] std::optional<std::string_view> nameOf(const Node* node) const;

    /// Adds a node under a name that is not there yet.
    Node& add(Text name, NodePointer node);
    /// Gives a name that is there to nothing, and its node to a name that is not there yet. The node stays
    /// where it is.
    void rename(std::string_view oldName, Text newName);
    /// A new name for an entry that has the name `oldName`.
    using Renaming = std::function<std::string(std::string_view oldName, const Node& entry)>;
    /// Gives every entry its new name, all at once. An entry keeps its name when the new one is empty, is
    /// what any entry was called before, or went to an entry before it. The nodes stay where they are.
    void renameAll(const Renaming& renaming);

  private:
    NodeMap items_;
    std::unordered_map<const Node*, std::string_view, NodeHash> names_; ///< the texts lie in items_
};

} // namespace specloom::openapi
