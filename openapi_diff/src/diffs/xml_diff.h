#pragma once

#include "openapi/xml.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `xml`.
class XMLDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::XML;
    void diff(const openapi::XML* source, const openapi::XML* destination, DiffContext& context) const;
};

} // namespace specloom::openapi_diff
