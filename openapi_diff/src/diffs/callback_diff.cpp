#include "openapi_diff/diffs/callback_diff.h"

#include "openapi_diff/diffs/path_item_diff.h"

namespace specloom::openapi_diff {

void CallbackDiff::diff(const openapi::Callback* source, const openapi::Callback* destination,
                        DiffContext& context) const {
    context.mark(source, destination);
    diffMaps<PathItemDiff>(ConfigKey::Callback, source, destination, context, &openapi::Callback::items);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
