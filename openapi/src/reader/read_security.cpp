// Security schemes and their OAuth flows.

#include "foundation/message.h"
#include "openapi/reader/readers.h"

namespace specloom::openapi {

namespace {

void readScopes(ReaderContext&, OAuthFlow& flow, const Member& member) {
    const jv::JV& scopes = member.asObject();
    for (const jv::Member& entry : scopes.members())
        flow.setScope(Text::borrow(entry.key), Member{scopes, entry.key, *entry.value}.text());
}

constexpr ObjectReader<OAuthFlow, 4, NodeType::OAuthFlow> oauthFlowReader({
    {"authorizationUrl", readText<OAuthFlow, &OAuthFlow::setAuthorizationUrl>},
    {"tokenUrl", readText<OAuthFlow, &OAuthFlow::setTokenUrl>},
    {"refreshUrl", readText<OAuthFlow, &OAuthFlow::setRefreshUrl>},
    {"scopes", readScopes},
});

template <auto create>
void readFlow(ReaderContext& context, OAuthFlows& flows, const Member& member) {
    const jv::JV& value = member.asObject();
    oauthFlowReader.read(context, *(flows.*create)(), value);
}

constexpr ObjectReader<OAuthFlows, 4, NodeType::OAuthFlows> oauthFlowsReader({
    {"implicit", readFlow<&OAuthFlows::createImplicit>},
    {"password", readFlow<&OAuthFlows::createPassword>},
    {"clientCredentials", readFlow<&OAuthFlows::createClientCredentials>},
    {"authorizationCode", readFlow<&OAuthFlows::createAuthorizationCode>},
});

void readFlows(ReaderContext& context, OAuth2SecurityScheme& scheme, const Member& member) {
    oauthFlowsReader.read(context, scheme.flows(), member.asObject());
}

// What a scheme cannot be without is given to its factory below.

constexpr ObjectReader<SecurityScheme, 1, NodeType::MutualTLSSecurityScheme> securitySchemeReader({
    {"description", readText<SecurityScheme, &SecurityScheme::setDescription>},
});

constexpr ObjectReader<HTTPSecurityScheme, 2, NodeType::HTTPSecurityScheme> httpReader({
    {"description", readText<HTTPSecurityScheme, &HTTPSecurityScheme::setDescription>},
    {"bearerFormat", readText<HTTPSecurityScheme, &HTTPSecurityScheme::setBearerFormat>},
});

constexpr ObjectReader<OAuth2SecurityScheme, 2, NodeType::OAuth2SecurityScheme> oauth2Reader({
    {"description", readText<OAuth2SecurityScheme, &OAuth2SecurityScheme::setDescription>},
    {"flows", readFlows},
});

[[nodiscard]] Text requiredText(const jv::JV& value, std::string_view name) {
    return Text::borrow(value.getRequiredString(name)->text());
}

[[nodiscard]] ApiKeyLocation readApiKeyLocation(const jv::JV& value) {
    const std::string_view in = value.getRequiredString("in")->text();
    const auto location = apiKeyLocationFromName(in);
    if (!location)
        throw std::runtime_error(formatMessage("Invalid API key location: {}", in));
    return *location;
}

} // namespace

void readSecurityScheme(ReaderContext& context, Components& components, std::string_view name,
                        const jv::JV& value) {
    const std::string_view type = value.getRequiredString("type")->text();
    Text key = Text::borrow(name);
    if (type == "apiKey") {
        Text keyName = requiredText(value, "name");
        const ApiKeyLocation location = readApiKeyLocation(value);
        SecurityScheme* scheme =
            components.createApiKeySecurityScheme(std::move(key), std::move(keyName), location);
        securitySchemeReader.read(context, *scheme, value);
    } else if (type == "http") {
        httpReader.read(context,
                        *components.createHTTPSecurityScheme(std::move(key), requiredText(value, "scheme")),
                        value);
    } else if (type == "mutualTLS") {
        SecurityScheme* scheme = components.createMutualTLSSecurityScheme(std::move(key));
        securitySchemeReader.read(context, *scheme, value);
    } else if (type == "oauth2") {
        oauth2Reader.read(context, *components.createOAuth2SecurityScheme(std::move(key)), value);
    } else if (type == "openIdConnect") {
        SecurityScheme* scheme = components.createOpenIdConnectSecurityScheme(
            std::move(key), requiredText(value, "openIdConnectUrl"));
        securitySchemeReader.read(context, *scheme, value);
    } else {
        throw std::runtime_error(formatMessage("Invalid security scheme type: {}", type));
    }
}

} // namespace specloom::openapi
