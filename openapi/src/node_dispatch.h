#pragma once

#include "foundation/unreachable.h"
#include "openapi/openapi.h"
#include "openapi/reference.h"

namespace specloom::openapi {

/// Calls `use` with `node` as its own class; parameters, security schemes and OAuth flows as Parameter,
/// SecurityScheme and OAuthFlow.
template <typename Use>
void dispatchNode(const Node& node, Use use) {
    switch (node.type()) {
    case NodeType::OpenAPI:
        return use(static_cast<const OpenAPI&>(node));
    case NodeType::Info:
        return use(static_cast<const Info&>(node));
    case NodeType::Contact:
        return use(static_cast<const Contact&>(node));
    case NodeType::License:
        return use(static_cast<const License&>(node));
    case NodeType::Server:
        return use(static_cast<const Server&>(node));
    case NodeType::ServerVariable:
        return use(static_cast<const ServerVariable&>(node));
    case NodeType::Components:
        return use(static_cast<const Components&>(node));
    case NodeType::Paths:
        return use(static_cast<const Paths&>(node));
    case NodeType::PathItem:
        return use(static_cast<const PathItem&>(node));
    case NodeType::Operation:
        return use(static_cast<const Operation&>(node));
    case NodeType::ExternalDocumentation:
        return use(static_cast<const ExternalDocumentation&>(node));
    case NodeType::Parameter:
    case NodeType::PathParameter:
    case NodeType::QueryParameter:
    case NodeType::HeaderParameter:
    case NodeType::CookieParameter:
        return use(static_cast<const Parameter&>(node));
    case NodeType::RequestBody:
        return use(static_cast<const RequestBody&>(node));
    case NodeType::MediaType:
        return use(static_cast<const MediaType&>(node));
    case NodeType::Encoding:
        return use(static_cast<const Encoding&>(node));
    case NodeType::Responses:
        return use(static_cast<const Responses&>(node));
    case NodeType::Response:
        return use(static_cast<const Response&>(node));
    case NodeType::Callback:
        return use(static_cast<const Callback&>(node));
    case NodeType::Example:
        return use(static_cast<const Example&>(node));
    case NodeType::Link:
        return use(static_cast<const Link&>(node));
    case NodeType::Header:
        return use(static_cast<const Header&>(node));
    case NodeType::Tag:
        return use(static_cast<const Tag&>(node));
    case NodeType::Reference:
        return use(static_cast<const Reference&>(node));
    case NodeType::Schema:
        return use(static_cast<const Schema&>(node));
    case NodeType::Discriminator:
        return use(static_cast<const Discriminator&>(node));
    case NodeType::XML:
        return use(static_cast<const XML&>(node));
    case NodeType::SecurityScheme:
    case NodeType::ApiKeySecurityScheme:
    case NodeType::HTTPSecurityScheme:
    case NodeType::MutualTLSSecurityScheme:
    case NodeType::OAuth2SecurityScheme:
    case NodeType::OpenIdConnectSecurityScheme:
        return use(static_cast<const SecurityScheme&>(node));
    case NodeType::OAuthFlows:
        return use(static_cast<const OAuthFlows&>(node));
    case NodeType::OAuthFlow:
    case NodeType::ImplicitOAuthFlow:
    case NodeType::PasswordOAuthFlow:
    case NodeType::ClientCredentialsOAuthFlow:
    case NodeType::AuthorizationCodeOAuthFlow:
        return use(static_cast<const OAuthFlow&>(node));
    case NodeType::SecurityRequirement:
        return use(static_cast<const SecurityRequirement&>(node));
    }
    SPECLOOM_UNREACHABLE("Unknown node type");
}

} // namespace specloom::openapi
