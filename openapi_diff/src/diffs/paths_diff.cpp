#include "openapi_diff/diffs/paths_diff.h"

#include "openapi_diff/diffs/path_item_diff.h"

namespace specloom::openapi_diff {

void PathsDiff::diff(const openapi::Paths* source, const openapi::Paths* destination,
                     DiffContext& context) const {
    context.mark(source, destination);
    diffMaps<PathItemDiff>(ConfigKey::Paths, source, destination, context, &openapi::Paths::items);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
