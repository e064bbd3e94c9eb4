#pragma once

#include "openapi/request_body.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `requestBody`.
class RequestBodyDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::RequestBody;
    void diff(const openapi::RequestBody* source, const openapi::RequestBody* destination,
              DiffContext& context) const;
};

} // namespace specloom::openapi_diff
