#pragma once

#include "openapi/node_dispatch.h"
#include "openapi/node_visit_handler.h"

#include <type_traits> // std::is_same_v
#include <vector>      // std::vector

namespace specloom::openapi {

/// Walks a tree in a fixed order, parents before children, and calls the hooks of a handler for each object:
/// that of its class, then the one for every node. References are followed, and every object is met once, at
/// its first use. Needs no stack for the depth of the tree.
class NodeVisitor {
  public:
    /// The handler must outlive the visitor. What a hook throws ends the walk.
    explicit NodeVisitor(NodeVisitHandler& handler) : handler_(handler) {}
    NodeVisitor(const NodeVisitor&) = delete;
    NodeVisitor& operator=(const NodeVisitor&) = delete;
    virtual ~NodeVisitor() = default;

    /// Walks from an object of any class. What this visitor has met before, in any walk of the same tree, is
    /// not met again.
    void visit(const Node& start);

  private:
    [[nodiscard]] bool markVisited(const Node& node);

    NodeVisitHandler& handler_;
    std::vector<bool> visited_; ///< by Node::index()
};

/// All objects of a tree, as a NodeVisitor meets them.
[[nodiscard]] std::vector<Node*> nodesOf(OpenAPI& root);

/// Calls change(object), which may change the object, for each object of class T. The objects are gathered
/// before: what is added meanwhile is not among them, and what is destroyed must have been before.
template <typename T, typename Change>
void changeEach(OpenAPI& root, Change change) {
    for (Node* node : nodesOf(root))
        dispatchNode(*node, [&]<typename Typed>(const Typed&) {
            if constexpr (std::is_same_v<Typed, T>)
                change(static_cast<T&>(*node));
        });
}

} // namespace specloom::openapi
