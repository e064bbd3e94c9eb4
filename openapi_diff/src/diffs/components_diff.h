#pragma once

#include "openapi/components.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `components`. Components of one name were compared before, with what refers to them; here
/// their changes are listed.
class ComponentsDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::Components;
    void diff(const openapi::Components* source, const openapi::Components* destination,
              DiffContext& context) const;
};

/// Compares two components of one section, or objects that references to such lead to, in the scope that the
/// caller opened. One may be null.
void diffComponents(const openapi::Node* source, const openapi::Node* destination, DiffContext& context);

} // namespace specloom::openapi_diff
