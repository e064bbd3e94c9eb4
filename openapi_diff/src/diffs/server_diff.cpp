#include "openapi_diff/diffs/server_diff.h"

#include "openapi_diff/diffs/server_variable_diff.h"

namespace specloom::openapi_diff {

void ServerDiff::diff(const openapi::Server* source, const openapi::Server* destination,
                      DiffContext& context) const {
    using openapi::Server;
    using enum ConfigKey;
    context.mark(source, destination);
    context.field(ServerUrl, source, destination, &Server::url);
    context.field(ServerDescription, source, destination, &Server::description);
    diffMaps<ServerVariableDiff>(ServerVariables, source, destination, context, &Server::variables);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
