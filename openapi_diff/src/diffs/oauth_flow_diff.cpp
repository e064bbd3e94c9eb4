#include "openapi_diff/diffs/oauth_flow_diff.h"

namespace specloom::openapi_diff {

void OAuthFlowDiff::diff(const openapi::OAuthFlow* source, const openapi::OAuthFlow* destination,
                         DiffContext& context) const {
    using openapi::OAuthFlow;
    using enum ConfigKey;
    context.mark(source, destination);
    context.field(OAuthFlowAuthorizationUrl, source, destination, &OAuthFlow::authorizationUrl);
    context.field(OAuthFlowTokenUrl, source, destination, &OAuthFlow::tokenUrl);
    context.field(OAuthFlowRefreshUrl, source, destination, &OAuthFlow::refreshUrl);
    diffPlainMaps(OAuthFlowScopes, source, destination, context, &OAuthFlow::scopes);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
