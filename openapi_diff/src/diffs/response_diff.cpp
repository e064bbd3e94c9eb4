#include "openapi_diff/diffs/response_diff.h"

#include "openapi_diff/diffs/header_diff.h"
#include "openapi_diff/diffs/link_diff.h"
#include "openapi_diff/diffs/media_type_diff.h"

namespace specloom::openapi_diff {

void ResponseDiff::diff(const openapi::Response* source, const openapi::Response* destination,
                        DiffContext& context) const {
    using openapi::Response;
    using enum ConfigKey;
    context.mark(source, destination);
    context.field(ResponseDescription, source, destination, &Response::description);
    diffMaps<HeaderDiff>(ResponseHeaders, source, destination, context, &Response::headers);
    diffMaps<MediaTypeDiff>(ResponseContent, source, destination, context, &Response::content);
    diffMaps<LinkDiff>(ResponseLinks, source, destination, context, &Response::links);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
