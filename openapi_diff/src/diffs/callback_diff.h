#pragma once

#include "openapi/callback.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `callback`: the path items by expression.
class CallbackDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::Callback;
    void diff(const openapi::Callback* source, const openapi::Callback* destination,
              DiffContext& context) const;
};

} // namespace specloom::openapi_diff
