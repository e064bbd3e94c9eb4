#pragma once

#include "openapi/header.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `header`. A header is called by the key that it stands under, so its name never differs.
class HeaderDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::Header;
    void diff(const openapi::Header* source, const openapi::Header* destination, DiffContext& context) const;
};

} // namespace specloom::openapi_diff
