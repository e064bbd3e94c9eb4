#include "openapi_diff/diffs/path_item_diff.h"

#include "openapi_diff/diffs/operation_diff.h"
#include "openapi_diff/diffs/parameter_list_diff.h"
#include "openapi_diff/diffs/server_list_diff.h"

namespace specloom::openapi_diff {
namespace {

/// By method, as entries of a map.
void diffOperations(const openapi::PathItem* source, const openapi::PathItem* destination,
                    DiffContext& context) {
    const auto operationOf = [](const openapi::PathItem* node, std::size_t method) {
        return node == nullptr ? nullptr : node->operations()[method].get();
    };
    const auto diffWhere = [&](bool inSource, bool inDestination) {
        for (std::size_t method = 0; method < openapi::operationKeys.size(); ++method) {
            const openapi::Operation* before = operationOf(source, method);
            const openapi::Operation* after = operationOf(destination, method);
            if ((before != nullptr) != inSource || (after != nullptr) != inDestination)
                continue;
            const auto scope = context.enterKey(before, after, ConfigKey::PathItemOperations,
                                                openapi::operationKeys[method]);
            OperationDiff().diff(before, after, context);
        }
    };
    diffWhere(false, true);
    diffWhere(true, false);
    diffWhere(true, true);
}

} // namespace

void PathItemDiff::diff(const openapi::PathItem* source, const openapi::PathItem* destination,
                        DiffContext& context) const {
    using openapi::PathItem;
    using enum ConfigKey;
    context.mark(source, destination);
    context.field(PathItemSummary, source, destination, &PathItem::summary);
    context.field(PathItemDescription, source, destination, &PathItem::description);
    ParameterListDiff(PathItemParameters)
        .diff(childOf(source, &PathItem::parameters), childOf(destination, &PathItem::parameters), context);
    diffOperations(source, destination, context);
    ServerListDiff(PathItemServers)
        .diff(childOf(source, &PathItem::servers), childOf(destination, &PathItem::servers), context);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
