#pragma once

#include "openapi/server_variable.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `serverVariable`.
class ServerVariableDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::ServerVariable;
    void diff(const openapi::ServerVariable* source, const openapi::ServerVariable* destination,
              DiffContext& context) const;
};

} // namespace specloom::openapi_diff
