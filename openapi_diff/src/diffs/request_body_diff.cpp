#include "openapi_diff/diffs/request_body_diff.h"

#include "openapi_diff/diffs/media_type_diff.h"

namespace specloom::openapi_diff {

void RequestBodyDiff::diff(const openapi::RequestBody* source, const openapi::RequestBody* destination,
                           DiffContext& context) const {
    using openapi::RequestBody;
    using enum ConfigKey;
    context.mark(source, destination);
    context.field(RequestBodyDescription, source, destination, &RequestBody::description);
    context.field(RequestBodyRequired, source, destination, &RequestBody::required);
    diffMaps<MediaTypeDiff>(RequestBodyContent, source, destination, context, &RequestBody::content);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
