#pragma once

#include "openapi/responses.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `responses`: the responses by status code.
class ResponsesDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::Responses;
    void diff(const openapi::Responses* source, const openapi::Responses* destination,
              DiffContext& context) const;
};

} // namespace specloom::openapi_diff
