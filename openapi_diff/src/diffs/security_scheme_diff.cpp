#include "openapi_diff/diffs/security_scheme_diff.h"

#include "openapi_diff/diffs/oauth_flows_diff.h"

namespace specloom::openapi_diff {
namespace {

using openapi::NodeType;
using openapi::SecurityScheme;
using Text = std::optional<std::string_view>;

/// The scheme as a T; null when it is of another class.
template <typename T>
const T* as(const SecurityScheme& scheme, NodeType type) {
    return scheme.type() == type ? static_cast<const T*>(&scheme) : nullptr;
}
const openapi::ApiKeySecurityScheme* asApiKey(const SecurityScheme& scheme) {
    return as<openapi::ApiKeySecurityScheme>(scheme, NodeType::ApiKeySecurityScheme);
}
const openapi::HTTPSecurityScheme* asHTTP(const SecurityScheme& scheme) {
    return as<openapi::HTTPSecurityScheme>(scheme, NodeType::HTTPSecurityScheme);
}

Text schemeNameOf(const SecurityScheme& scheme) {
    const auto* apiKey = asApiKey(scheme);
    return apiKey == nullptr ? std::nullopt : Text(apiKey->name());
}

Text locationOf(const SecurityScheme& scheme) {
    const auto* apiKey = asApiKey(scheme);
    return apiKey == nullptr ? std::nullopt : Text(apiKeyLocationName(apiKey->location()));
}

Text schemeOf(const SecurityScheme& scheme) {
    const auto* http = asHTTP(scheme);
    return http == nullptr ? std::nullopt : Text(http->scheme());
}

Text bearerFormatOf(const SecurityScheme& scheme) {
    const auto* http = asHTTP(scheme);
    return http == nullptr ? std::nullopt : http->bearerFormat();
}

const openapi::OAuthFlows* flowsOf(const SecurityScheme& scheme) {
    const auto* oauth2 = as<openapi::OAuth2SecurityScheme>(scheme, NodeType::OAuth2SecurityScheme);
    return oauth2 == nullptr ? nullptr : &oauth2->flows();
}

Text openIdConnectUrlOf(const SecurityScheme& scheme) {
    const auto* openId =
        as<openapi::OpenIdConnectSecurityScheme>(scheme, NodeType::OpenIdConnectSecurityScheme);
    return openId == nullptr ? std::nullopt : Text(openId->openIdConnectUrl());
}

} // namespace

void SecuritySchemeDiff::diff(const SecurityScheme* source, const SecurityScheme* destination,
                              DiffContext& context) const {
    using enum ConfigKey;
    context.mark(source, destination);
    context.field(SecuritySchemeName, source, destination, schemeNameOf);
    context.field(SecuritySchemeDescription, source, destination, &SecurityScheme::description);
    context.field(SecuritySchemeType, source, destination, &SecurityScheme::typeName);
    context.field(SecuritySchemeIn, source, destination, locationOf);
    context.field(SecuritySchemeScheme, source, destination, schemeOf);
    context.field(SecuritySchemeBearerFormat, source, destination, bearerFormatOf);
    diffField<OAuthFlowsDiff>(SecuritySchemeFlows, source, destination, context, flowsOf);
    context.field(SecuritySchemeOpenIdConnectUrl, source, destination, openIdConnectUrlOf);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
