#pragma once

#include "openapi/link.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `link`.
class LinkDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::Link;
    void diff(const openapi::Link* source, const openapi::Link* destination, DiffContext& context) const;
};

} // namespace specloom::openapi_diff
