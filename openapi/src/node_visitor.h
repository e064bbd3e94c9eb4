#pragma once

#include "openapi/node.h"
#include "openapi/node_visit_handler.h"

#include <vector> // std::vector

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

} // namespace specloom::openapi
