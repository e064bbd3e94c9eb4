#pragma once

#include "openapi/external_documentation.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `externalDocumentation`.
class ExternalDocumentationDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::ExternalDocumentation;
    void diff(const openapi::ExternalDocumentation* source, const openapi::ExternalDocumentation* destination,
              DiffContext& context) const;
};

} // namespace specloom::openapi_diff
