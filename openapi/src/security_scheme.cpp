#include "openapi/security_scheme.h"

#include "foundation/unreachable.h"

#include <algorithm> // std::find
#include <array>     // std::array

namespace specloom::openapi {

namespace {

constexpr std::array<std::string_view, 3> apiKeyLocations{"query", "header", "cookie"};

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
    return apiKeyLocations.at(static_cast<std::size_t>(location));
}

std::optional<ApiKeyLocation> apiKeyLocationFromName(std::string_view name) {
    const auto found = std::find(apiKeyLocations.begin(), apiKeyLocations.end(), name);
    if (found == apiKeyLocations.end())
        return std::nullopt;
    return static_cast<ApiKeyLocation>(found - apiKeyLocations.begin());
}

OAuth2SecurityScheme::OAuth2SecurityScheme(Node* parent)
    : SecurityScheme(parent, NodeType::OAuth2SecurityScheme), flows_(this) {}

} // namespace specloom::openapi
