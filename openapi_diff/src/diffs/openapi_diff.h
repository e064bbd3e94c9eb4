#pragma once

#include "openapi/openapi.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// The documents themselves, of the section `openapi`. No scope is open around them, so that their changes
/// reach the report one by one.
class OpenAPIDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::OpenAPI;
    void diff(const openapi::OpenAPI* source, const openapi::OpenAPI* destination,
              DiffContext& context) const;
};

} // namespace specloom::openapi_diff
