#pragma once

#include "openapi/media_type.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `mediaType`.
class MediaTypeDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::MediaType;
    void diff(const openapi::MediaType* source, const openapi::MediaType* destination,
              DiffContext& context) const;
};

} // namespace specloom::openapi_diff
