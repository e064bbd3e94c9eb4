#pragma once

#include "openapi/server.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `server`.
class ServerDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::Server;
    void diff(const openapi::Server* source, const openapi::Server* destination, DiffContext& context) const;
};

} // namespace specloom::openapi_diff
