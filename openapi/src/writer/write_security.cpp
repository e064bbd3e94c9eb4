// Security schemes, their OAuth flows, and requirements.

#include "openapi/openapi.h"
#include "openapi/writer/node_writers.h"

namespace specloom::openapi {

void writeMembers(ObjectWriter& out, const SecurityScheme& scheme) {
    out.text("type", scheme.typeName());
    out.text("description", scheme.description());
    switch (scheme.type()) {
    case NodeType::ApiKeySecurityScheme: {
        const auto& apiKey = static_cast<const ApiKeySecurityScheme&>(scheme);
        out.text("name", apiKey.name());
        out.text("in", apiKeyLocationName(apiKey.location()));
        break;
    }
    case NodeType::HTTPSecurityScheme: {
        const auto& http = static_cast<const HTTPSecurityScheme&>(scheme);
        out.text("scheme", http.scheme());
        out.text("bearerFormat", http.bearerFormat());
        break;
    }
    case NodeType::OAuth2SecurityScheme:
        out.node("flows", &static_cast<const OAuth2SecurityScheme&>(scheme).flows());
        break;
    case NodeType::OpenIdConnectSecurityScheme:
        out.text("openIdConnectUrl",
                 static_cast<const OpenIdConnectSecurityScheme&>(scheme).openIdConnectUrl());
        break;
    default: // mutual TLS has no more; typeName() has stopped at anything else
        break;
    }
}

void writeMembers(ObjectWriter& out, const OAuthFlows& flows) {
    out.node("implicit", flows.implicit());
    out.node("password", flows.password());
    out.node("clientCredentials", flows.clientCredentials());
    out.node("authorizationCode", flows.authorizationCode());
}

void writeMembers(ObjectWriter& out, const OAuthFlow& flow) {
    out.text("authorizationUrl", flow.authorizationUrl());
    out.text("tokenUrl", flow.tokenUrl());
    out.text("refreshUrl", flow.refreshUrl());
    if (flow.scopes().empty()) // OpenAPI demands the member
        out.add("scopes", jv::JV::newObject());
    out.map("scopes", flow.scopes());
}

void writeMembers(ObjectWriter& out, const SecurityRequirement& requirement) {
    for (const SecurityRequirement::Scheme& scheme : requirement.schemes()) {
        std::unique_ptr<jv::JV> scopes = jv::JV::newArray();
        for (const Text& scope : scheme.scopes)
            scopes->appendString(scope.view());
        out.add(scheme.name(), std::move(scopes));
    }
}

} // namespace specloom::openapi
