#include "openapi/node_texts.h"

#include "openapi/example.h"
#include "openapi/header.h"
#include "openapi/link.h"
#include "openapi/openapi.h"
#include "openapi/operation.h"
#include "openapi/parameter.h"
#include "openapi/path_item.h"
#include "openapi/reference.h"
#include "openapi/request_body.h"
#include "openapi/response.h"
#include "openapi/schema.h"
#include "openapi/security_scheme.h"

namespace specloom::openapi {
namespace {

template <typename T>
NodeTexts described(const Node& node) {
    return {.title = {}, .summary = {}, .description = static_cast<const T&>(node).description()};
}

template <typename T>
NodeTexts summarized(const Node& node) {
    const T& object = static_cast<const T&>(node);
    return {.title = {}, .summary = object.summary(), .description = object.description()};
}

} // namespace

NodeTexts textsOf(const Node& node) {
    switch (node.type()) {
    case NodeType::Info: {
        NodeTexts texts = summarized<Info>(node);
        texts.title = static_cast<const Info&>(node).title();
        return texts;
    }
    case NodeType::Schema: {
        NodeTexts texts = described<Schema>(node);
        texts.title = static_cast<const Schema&>(node).title();
        return texts;
    }
    case NodeType::PathItem:
        return summarized<PathItem>(node);
    case NodeType::Operation:
        return summarized<Operation>(node);
    case NodeType::Example:
        return summarized<Example>(node);
    case NodeType::Reference:
        return summarized<Reference>(node);
    case NodeType::Server:
        return described<Server>(node);
    case NodeType::ServerVariable:
        return described<ServerVariable>(node);
    case NodeType::ExternalDocumentation:
        return described<ExternalDocumentation>(node);
    case NodeType::Parameter:
    case NodeType::PathParameter:
    case NodeType::QueryParameter:
    case NodeType::HeaderParameter:
    case NodeType::CookieParameter:
        return described<Parameter>(node);
    case NodeType::RequestBody:
        return described<RequestBody>(node);
    case NodeType::Response:
        return described<Response>(node);
    case NodeType::Link:
        return described<Link>(node);
    case NodeType::Header:
        return described<Header>(node);
    case NodeType::Tag:
        return described<Tag>(node);
    case NodeType::SecurityScheme:
    case NodeType::ApiKeySecurityScheme:
    case NodeType::HTTPSecurityScheme:
    case NodeType::MutualTLSSecurityScheme:
    case NodeType::OAuth2SecurityScheme:
    case NodeType::OpenIdConnectSecurityScheme:
        return described<SecurityScheme>(node);
    default:
        return {};
    }
}

} // namespace specloom::openapi
