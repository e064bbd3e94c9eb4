#pragma once

#include <cstddef> // std::size_t
#include <cstdint> // std::uint32_t

namespace specloom::openapi {

/// The class of a node. The numbers are fixed: the writer and the differ compare ranges of them.
enum class NodeType : std::uint32_t {
    OpenAPI = 0,
    Info = 1,
    Contact = 2,
    License = 3,
    Server = 4,
    ServerVariable = 5,
    Components = 6,
    Paths = 7,
    PathItem = 8,
    Operation = 9,
    ExternalDocumentation = 10,
    Parameter = 11, ///< location outside the four known ones; never read
    PathParameter = 12,
    QueryParameter = 13,
    HeaderParameter = 14,
    CookieParameter = 15,
    RequestBody = 16,
    MediaType = 17,
    Encoding = 18,
    Responses = 19,
    Response = 20,
    Callback = 21,
    Example = 22,
    Link = 23,
    Header = 24,
    Tag = 25,
    Reference = 26,
    Schema = 27,
    Discriminator = 28,
    XML = 29,
    SecurityScheme = 30, ///< abstract
    ApiKeySecurityScheme = 31,
    HTTPSecurityScheme = 32,
    MutualTLSSecurityScheme = 33,
    OAuth2SecurityScheme = 34,
    OpenIdConnectSecurityScheme = 35,
    OAuthFlows = 36,
    OAuthFlow = 37, ///< abstract
    ImplicitOAuthFlow = 38,
    PasswordOAuthFlow = 39,
    ClientCredentialsOAuthFlow = 40,
    AuthorizationCodeOAuthFlow = 41,
    SecurityRequirement = 42,
};

inline constexpr std::size_t nodeTypeCount = static_cast<std::size_t>(NodeType::SecurityRequirement) + 1;

} // namespace specloom::openapi
