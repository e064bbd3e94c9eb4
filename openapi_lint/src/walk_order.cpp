#include "openapi_lint/walk_order.h"

#include "openapi/node_dispatch.h"
#include "openapi/node_visitor.h"
#include "openapi_lint/disabling.h"

namespace specloom::openapi_lint {
namespace {

class Collector final : public openapi::NodeVisitHandler {
  public:
    using NodeVisitHandler::visit;
    explicit Collector(std::vector<const openapi::Node*>& nodes) : nodes_(nodes) {}
    void visit(const openapi::Node& node) override { nodes_.push_back(&node); }

  private:
    std::vector<const openapi::Node*>& nodes_;
};

/// A walk meets no references, but each is known to its target.
bool hasDisabling(const openapi::Node& node) {
    if (disablingOf(node) != nullptr)
        return true;
    for (const openapi::Reference* reference = node.firstReference(); reference != nullptr;
         reference = reference->nextReference())
        if (disablingOf(*reference) != nullptr)
            return true;
    return false;
}

} // namespace

WalkOrder::WalkOrder(const openapi::Node& root) {
    nodes_.reserve(root.indexLimit());
    Collector collector(nodes_);
    openapi::NodeVisitor(collector).visit(root);
    for (const openapi::Node* node : nodes_)
        mayDisable_ = mayDisable_ || hasDisabling(*node);
}

void WalkOrder::walk(openapi::NodeVisitHandler& handler) const {
    for (const openapi::Node* node : nodes_)
        openapi::dispatchNode(*node, [&](const auto& typed) {
            handler.visit(typed);
            handler.visit(*node);
        });
}

} // namespace specloom::openapi_lint
