#pragma once

#include "openapi/response.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `response`.
class ResponseDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::Response;
    void diff(const openapi::Response* source, const openapi::Response* destination,
              DiffContext& context) const;
};

} // namespace specloom::openapi_diff
