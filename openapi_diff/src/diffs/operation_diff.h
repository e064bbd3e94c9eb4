#pragma once

#include "openapi/operation.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `operation`.
class OperationDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::Operation;
    void diff(const openapi::Operation* source, const openapi::Operation* destination,
              DiffContext& context) const;
};

} // namespace specloom::openapi_diff
