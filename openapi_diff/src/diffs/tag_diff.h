#pragma once

#include "openapi/tag.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `tag`.
class TagDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::Tag;
    void diff(const openapi::Tag* source, const openapi::Tag* destination, DiffContext& context) const;
};

} // namespace specloom::openapi_diff
