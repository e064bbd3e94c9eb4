#pragma once

#include "openapi/info.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `info`.
class InfoDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::Info;
    void diff(const openapi::Info* source, const openapi::Info* destination, DiffContext& context) const;
};

} // namespace specloom::openapi_diff
