#pragma once

#include "openapi/example.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `example`.
class ExampleDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::Example;
    void diff(const openapi::Example* source, const openapi::Example* destination,
              DiffContext& context) const;
};

} // namespace specloom::openapi_diff
