#pragma once

#include "openapi/contact.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `contact`.
class ContactDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::Contact;
    void diff(const openapi::Contact* source, const openapi::Contact* destination,
              DiffContext& context) const;
};

} // namespace specloom::openapi_diff
