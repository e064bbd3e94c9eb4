#include "openapi/callback.h"

#include "openapi/node_children.h"

namespace specloom::openapi {

PathItem* Callback::createPathItem(Text expression) {
    return createChild<PathItem>(items_, this, std::move(expression), "Path item already exists");
}

Reference* Callback::addPathItemReference(Text expression, Node& target) {
    return addReference(items_, this, std::move(expression), target, "Path item already exists");
}

} // namespace specloom::openapi
