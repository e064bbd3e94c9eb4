#include "openapi_diff/diffs/oauth_flows_diff.h"

#include "openapi_diff/diffs/oauth_flow_diff.h"

namespace specloom::openapi_diff {

void OAuthFlowsDiff::diff(const openapi::OAuthFlows* source, const openapi::OAuthFlows* destination,
                          DiffContext& context) const {
    using openapi::OAuthFlows;
    using enum ConfigKey;
    context.mark(source, destination);
    diffField<ImplicitOAuthFlowDiff>(OAuthFlowsImplicit, source, destination, context, &OAuthFlows::implicit);
    diffField<PasswordOAuthFlowDiff>(OAuthFlowsPassword, source, destination, context, &OAuthFlows::password);
    diffField<ClientCredentialsOAuthFlowDiff>(OAuthFlowsClientCredentials, source, destination, context,
                                              &OAuthFlows::clientCredentials);
    diffField<AuthorizationCodeOAuthFlowDiff>(OAuthFlowsAuthorizationCode, source, destination, context,
                                              &OAuthFlows::authorizationCode);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
