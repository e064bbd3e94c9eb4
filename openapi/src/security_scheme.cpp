#include "openapi/security_scheme.h"

#include "foundation/unreachable.h"

#include <algorithm> // std::find
#include <array>     // std::array

namespace specloom::openapi {

namespace {

constexpr std::array<std::string_view, 3> locationNames{"query", "header", "cookie"};

} // namespace

std::string_view SecurityScheme::typeName() const {
    switch (type()) {
    case NodeType::ApiKeySecurityScheme:
        return "apiKey";
    case NodeType::HTTPSecurityScheme:
        return "http";
    case NodeType::MutualTLSSecurityScheme:
        return "mutualTLS";
    case NodeType::OAuth2SecurityScheme:
        return "oauth2";
    case NodeType::OpenIdConnectSecurityScheme:
        return "openIdConnect";
    default:
        SPECLOOM_UNREACHABLE("Unknown kind of security scheme");
    }
}

std::string_view apiKeyLocationName(ApiKeyLocation location) {
    return locationNames.at(static_cast<std::size_t>(location));
}

std::optional<ApiKeyLocation> apiKeyLocationFromName(std::string_view name) {
    const auto found = std::find(locationNames.begin(), locationNames.end(), name);
    if (found == locationNames.end())
        return std::nullopt;
    return static_cast<ApiKeyLocation>(found - locationNames.begin());
}

OAuth2SecurityScheme::OAuth2SecurityScheme(Node* parent)
    : SecurityScheme(parent, NodeType::OAuth2SecurityScheme), flows_(this) {}

} // namespace specloom::openapi
