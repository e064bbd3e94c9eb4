#include "openapi_diff/diffs/link_diff.h"

#include "openapi_diff/diffs/server_diff.h"

namespace specloom::openapi_diff {

void LinkDiff::diff(const openapi::Link* source, const openapi::Link* destination,
                    DiffContext& context) const {
    using openapi::Link;
    using enum ConfigKey;
    context.mark(source, destination);
    context.field(LinkDescription, source, destination, &Link::description);
    diffField<ServerDiff>(LinkServer, source, destination, context, &Link::server);
    context.field(LinkOperationRef, source, destination, &Link::operationRef);
    context.field(LinkOperationId, source, destination, &Link::operationId);
    diffPlainMaps(LinkParameters, source, destination, context, &Link::parameters);
    context.field(LinkRequestBody, source, destination, &Link::requestBody);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
