#pragma once

#include "openapi/schema.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `schema`.
class SchemaDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::Schema;
    void diff(const openapi::Schema* source, const openapi::Schema* destination, DiffContext& context) const;
};

} // namespace specloom::openapi_diff
