#pragma once

#include "openapi/oauth_flows.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `oauthFlows`.
class OAuthFlowsDiff final : public NodeDiff {
  public:
    using NodeClass = openapi::OAuthFlows;
    void diff(const openapi::OAuthFlows* source, const openapi::OAuthFlows* destination,
              DiffContext& context) const;
};

} // namespace specloom::openapi_diff
