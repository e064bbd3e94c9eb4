#pragma once

#include "openapi/path_item.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `pathItem`.
class PathItemDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::PathItem;
    void diff(const openapi::PathItem* source, const openapi::PathItem* destination,
              DiffContext& context) const;
};

} // namespace specloom::openapi_diff
