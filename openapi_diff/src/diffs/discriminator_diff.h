#pragma once

#include "openapi/discriminator.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `discriminator`.
class DiscriminatorDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::Discriminator;
    void diff(const openapi::Discriminator* source, const openapi::Discriminator* destination,
              DiffContext& context) const;
};

} // namespace specloom::openapi_diff
