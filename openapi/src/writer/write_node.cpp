#include "openapi/node_dispatch.h"
#include "openapi/writer/node_writers.h"

namespace specloom::openapi {

std::unique_ptr<jv::JV> writeNode(const WriteContext& context, const Node& node) {
    if (node.type() == NodeType::Reference && !canWrite(static_cast<const Reference&>(node)))
        return nullptr;
    // OpenAPI 3.0 knows booleans as `additionalProperties` only, whose writer sees to that itself.
    if (node.type() == NodeType::Schema && context.booleanSchemas && !context.isVersion30) {
        if (auto boolean = booleanFor(static_cast<const Schema&>(node)); boolean != nullptr)
            return boolean;
    }
    ObjectWriter out(context, node);
    dispatchNode(node, [&](const auto& typed) { writeMembers(out, typed); });
    return out.finish();
}

} // namespace specloom::openapi
