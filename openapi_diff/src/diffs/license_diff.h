#pragma once

#include "openapi/license.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `license`.
class LicenseDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::License;
    void diff(const openapi::License* source, const openapi::License* destination,
              DiffContext& context) const;
};

} // namespace specloom::openapi_diff
