#pragma once

#include "openapi/node.h"
#include "openapi/node_visit_handler.h"

#include <vector> // std::vector

namespace specloom::openapi_lint {

/// The objects of a document as openapi::NodeVisitor meets them, written down once for the many rules that
/// walk them while nobody changes the tree.
class WalkOrder {
  public:
    explicit WalkOrder(const openapi::Node& root);

    /// Calls the hooks of the handler for each object.
    void walk(openapi::NodeVisitHandler& handler) const;
    /// Whether some object or reference has an extension that switches rules off.
    [[nodiscard]] bool mayDisable() const noexcept { return mayDisable_; }

  private:
    std::vector<const openapi::Node*> nodes_;
    bool mayDisable_ = false;
};

} // namespace specloom::openapi_lint
