#pragma once

#include "foundation/message.h"
#include "openapi/name_map.h"
#include "openapi/node_pool.h"
#include "openapi/node_type.h"
#include "openapi/text.h"
#include "openapi/value.h"

#include <cstdint>     // std::uint32_t
#include <memory>      // std::unique_ptr
#include <optional>    // std::optional
#include <stdexcept>   // std::runtime_error
#include <string>      // std::string
#include <string_view> // std::string_view
#include <variant>     // std::variant

namespace specloom::openapi {

class Operation;
class Reference;

/// What happens to an operation; sent to every node from the operation up to the root.
struct NodeChange {
    struct Created {};
    struct Destroyed {
        std::optional<std::string> id;
    };
    struct Renamed {
        std::optional<std::string> oldId;
        std::optional<std::string> newId;
    };

    Operation* operation;
    std::variant<Created, Destroyed, Renamed> what;
};

/// The "x-" members of an object.
using ExtensionMap = NameMap<Value>;

/// One object of an OpenAPI document. A node owns its children and knows its parent; nodes never move.
///
/// Destroying a node clears the target of every reference to it.
class Node {
  public:
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;
    virtual ~Node();
    [[nodiscard]] static void* operator new(std::size_t bytes) { return NodePool::allocate(bytes); }
    static void operator delete(void* memory, std::size_t bytes) noexcept {
        NodePool::release(memory, bytes);
    }

    /// A new reference to this node that stands in `parent`. A reference to a reference refers to the object
    /// behind it.
    [[nodiscard]] virtual std::unique_ptr<Reference> createReference(Node* parent);
    /// The object itself, or the one that a reference refers to: null when that was destroyed.
    [[nodiscard]] virtual const Node* resolve() const { return this; }
    [[nodiscard]] virtual Node* resolve() { return this; }
    virtual void onChange(const NodeChange& change);

    /// Null only in the OpenAPI root.
    [[nodiscard]] const Node* parent() const noexcept { return parent_; }
    [[nodiscard]] Node* parent() noexcept { return parent_; }
    [[nodiscard]] NodeType type() const noexcept { return type_; }
    /// The OpenAPI object of the tree.
    [[nodiscard]] const Node* root() const noexcept { return tree_->root; }
    [[nodiscard]] Node* root() noexcept { return tree_->root; }

    /// Calls onChange() on this node and on each of its ancestors, upwards.
    void notifyChange(const NodeChange& change);

    /// In byte-wise order of their names.
    [[nodiscard]] const ExtensionMap& extensions() const noexcept;
    /// Null when there is none of exactly that name.
    [[nodiscard]] const jv::JV* findExtension(std::string_view key) const;
    /// Stores a value under a key that is absent. When the key is present, its value is removed and nothing
    /// is stored: the second call empties the key.
    void setExtension(Text key, Value value);
    /// Stores a value under a key, whatever was there.
    void replaceExtension(Text key, Value value);

    /// The first of the references to this node; Reference::nextReference() leads on. Null when there are
    /// none.
    [[nodiscard]] const Reference* firstReference() const noexcept {
        return rare_ == nullptr ? nullptr : rare_->firstReference;
    }

    /// The value that this node was read from; null for a node that was made in code.
    [[nodiscard]] const jv::JV* source() const noexcept { return source_; }
    /// For the reader.
    void setSource(const jv::JV* source) noexcept { source_ = source; }

    /// A number that no other node of the tree has or had, counted from 0 at the root, without gaps while the
    /// tree is built. Tables over all nodes are arrays by it.
    [[nodiscard]] std::uint32_t index() const noexcept { return index_; }
    /// One more than the largest index() of the tree.
    [[nodiscard]] std::uint32_t indexLimit() const noexcept { return tree_->created; }

  protected:
    Node(Node* parent, NodeType type);

  private:
    friend class Reference;

    /// What all nodes of a tree share; the root's to destroy.
    struct Tree {
        Node* root;
        std::uint32_t created = 0; ///< nodes made so far
    };
    /// What few nodes have.
    struct Rare {
        ExtensionMap extensions;
        Reference* firstReference = nullptr;
    };

    [[nodiscard]] Rare& rare();

    // Documents have a node for every four values, so a node is kept small; and what a walk asks of every
    // node stands first, in one line of the cache.
    NodeType type_;
    std::uint32_t index_;
    Node* parent_;
    Tree* tree_;
    const jv::JV* source_ = nullptr;
    std::unique_ptr<Rare> rare_;
};

static_assert(sizeof(Node) == 48, "trees have many nodes");

/// A place in the tree that may hold a reference holds a Node: the object or a Reference to one.
using NodePointer = std::unique_ptr<Node>;
using NodeMap = NameMap<NodePointer>;

/// What `node` is or refers to, which the caller knows to be a T; null for null.
template <typename T>
[[nodiscard]] const T* resolveTo(const Node* node) {
    return node == nullptr ? nullptr : static_cast<const T*>(node->resolve());
}
template <typename T>
[[nodiscard]] T* resolveTo(Node* node) {
    return node == nullptr ? nullptr : static_cast<T*>(node->resolve());
}
/// The same for the entry of a map.
template <typename T>
[[nodiscard]] const T* resolveTo(const NodePointer* entry) {
    return entry == nullptr ? nullptr : resolveTo<T>(static_cast<const Node*>(entry->get()));
}

/// A failure that concerns one node.
class NodeError : public std::runtime_error {
  public:
    NodeError(const Message& message, const Node* node)
        : std::runtime_error(message.composed()), node_(node) {}
    [[nodiscard]] const Node* node() const noexcept { return node_; }

  private:
    const Node* node_;
};

} // namespace specloom::openapi
