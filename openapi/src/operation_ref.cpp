#include "openapi/operation_ref.h"

namespace specloom::openapi {

std::vector<OperationRef> operationsOf(const OpenAPI& root) {
    std::vector<OperationRef> result;
    for (const auto& [url, node] : root.paths()) {
        const auto* item = resolveTo<PathItem>(node.get());
        if (item == nullptr)
            continue;
        for (std::size_t method = 0; method < operationKeys.size(); ++method)
            if (const Operation* operation = item->operations()[method].get())
                result.push_back({operation, item, static_cast<OperationType>(method), url.view()});
    }
    return result;
}

} // namespace specloom::openapi
