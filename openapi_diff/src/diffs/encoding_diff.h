#pragma once

#include "openapi/encoding.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `encoding`.
class EncodingDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::Encoding;
    void diff(const openapi::Encoding* source, const openapi::Encoding* destination,
              DiffContext& context) const;
};

} // namespace specloom::openapi_diff
