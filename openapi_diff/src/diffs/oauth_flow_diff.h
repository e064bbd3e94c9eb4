#pragma once

#include "openapi/oauth_flow.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `oauthFlow`, the same for the four classes of flows.
class OAuthFlowDiff : public NodeDiff {
  public:
    using NodeClass = openapi::OAuthFlow;
    void diff(const openapi::OAuthFlow* source, const openapi::OAuthFlow* destination,
              DiffContext& context) const;
};

class ImplicitOAuthFlowDiff final : public OAuthFlowDiff {
  public:
    using NodeClass = openapi::ImplicitOAuthFlow;
};
class PasswordOAuthFlowDiff final : public OAuthFlowDiff {
  public:
    using NodeClass = openapi::PasswordOAuthFlow;
};
class ClientCredentialsOAuthFlowDiff final : public OAuthFlowDiff {
  public:
    using NodeClass = openapi::ClientCredentialsOAuthFlow;
};
class AuthorizationCodeOAuthFlowDiff final : public OAuthFlowDiff {
  public:
    using NodeClass = openapi::AuthorizationCodeOAuthFlow;
};

} // namespace specloom::openapi_diff
