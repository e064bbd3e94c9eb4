#pragma once

#include "openapi_diff/diff_context.h"

namespace specloom::openapi_diff {

/// Compares two nodes of one class. A member of the family holds no state.
///
/// Each has an operation `diff(source, destination, context)`, which begins with mark(), takes the fields in
/// the order of their keys, and ends with the extensions. One of the nodes may be null: its fields then count
/// as removed or added. It works in the scope that the caller opened.
class NodeDiff {
  public:
    NodeDiff() = default;
    NodeDiff(const NodeDiff&) = delete;
    NodeDiff& operator=(const NodeDiff&) = delete;
    virtual ~NodeDiff() = default;
};

/// Tells the extensions that were added, removed and modified, in this order. One node may be null.
void diffExtensions(const openapi::Node* source, const openapi::Node* destination, DiffContext& context);

} // namespace specloom::openapi_diff
