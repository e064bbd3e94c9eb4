#pragma once

#include "openapi/paths.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `paths`: the path items by URL.
class PathsDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::Paths;
    void diff(const openapi::Paths* source, const openapi::Paths* destination, DiffContext& context) const;
};

} // namespace specloom::openapi_diff
