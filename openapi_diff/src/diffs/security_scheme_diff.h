#pragma once

#include "openapi/security_scheme.h"
#include "openapi_diff/diffs/node_diff.h"

namespace specloom::openapi_diff {

/// Of the section `securityScheme`, for two schemes of any class: the type of a scheme may change, and then
/// the fields of the one type were removed and those of the other added.
class SecuritySchemeDiff : public NodeDiff {
  public:
    using NodeClass = openapi::SecurityScheme;
    void diff(const openapi::SecurityScheme* source, const openapi::SecurityScheme* destination,
              DiffContext& context) const;
};

class ApiKeySecuritySchemeDiff final : public SecuritySchemeDiff {
  public:
    using NodeClass = openapi::ApiKeySecurityScheme;
};
class HTTPSecuritySchemeDiff final : public SecuritySchemeDiff {
  public:
    using NodeClass = openapi::HTTPSecurityScheme;
};
class MutualTLSSecuritySchemeDiff final : public SecuritySchemeDiff {
  public:
    using NodeClass = openapi::MutualTLSSecurityScheme;
};
class OAuth2SecuritySchemeDiff final : public SecuritySchemeDiff {
  public:
    using NodeClass = openapi::OAuth2SecurityScheme;
};
class OpenIDConnectSecuritySchemeDiff final : public SecuritySchemeDiff {
  public:
    using NodeClass = openapi::OpenIdConnectSecurityScheme;
};

} // namespace specloom::openapi_diff
