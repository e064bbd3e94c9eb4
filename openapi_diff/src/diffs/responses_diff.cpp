#include "openapi_diff/diffs/responses_diff.h"

#include "openapi_diff/diffs/response_diff.h"

namespace specloom::openapi_diff {

void ResponsesDiff::diff(const openapi::Responses* source, const openapi::Responses* destination,
                         DiffContext& context) const {
    context.mark(source, destination);
    diffMaps<ResponseDiff>(ConfigKey::Responses, source, destination, context, &openapi::Responses::items);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
