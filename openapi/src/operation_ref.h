#pragma once

#include "openapi/openapi.h"

#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi {

/// An operation and where it stands. It refers to the tree.
struct OperationRef {
    const Operation* operation;
    const PathItem* pathItem; ///< behind a reference, where the path has one
    OperationType method;
    std::string_view path; ///< the URL template
};

/// The operations below "paths", in the order of their URLs and then of their OperationType. Those of
/// webhooks, callbacks and of path items that no path refers to are none of them.
[[nodiscard]] std::vector<OperationRef> operationsOf(const OpenAPI& root);

} // namespace specloom::openapi
