#include "openapi_lint/markdown_texts.h"

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

namespace specloom::openapi_lint {
namespace {

template <typename T>
NodeTexts described(const openapi::Node& node) {
    return {.title = {}, .summary = {}, .description = static_cast<const T&>(node).description()};
}

template <typename T>
NodeTexts summarized(const openapi::Node& node) {
    const T& object = static_cast<const T&>(node);
    return {.title = {}, .summary = object.summary(), .description = object.description()};
}

} // namespace

NodeTexts textsOf(const openapi::Node& node) {
    using openapi::NodeType;
    switch (node.type()) {
    case NodeType::Info: {
        NodeTexts texts = summarized<openapi::Info>(node);
        texts.title = static_cast<const openapi::Info&>(node).title();
        return texts;
    }
    case NodeType::Schema: {
        NodeTexts texts = described<openapi::Schema>(node);
        texts.title = static_cast<const openapi::Schema&>(node).title();
        return texts;
    }
    case NodeType::PathItem:
        return summarized<openapi::PathItem>(node);
    case NodeType::Operation:
        return summarized<openapi::Operation>(node);
    case NodeType::Example:
        return summarized<openapi::Example>(node);
    case NodeType::Reference:
        return summarized<openapi::Reference>(node);
    case NodeType::Server:
        return described<openapi::Server>(node);
    case NodeType::ServerVariable:
        return described<openapi::ServerVariable>(node);
    case NodeType::ExternalDocumentation:
        return described<openapi::ExternalDocumentation>(node);
    case NodeType::Parameter:
    case NodeType::PathParameter:
    case NodeType::QueryParameter:
    case NodeType::HeaderParameter:
    case NodeType::CookieParameter:
        return described<openapi::Parameter>(node);
    case NodeType::RequestBody:
        return described<openapi::RequestBody>(node);
    case NodeType::Response:
        return described<openapi::Response>(node);
    case NodeType::Link:
        return described<openapi::Link>(node);
    case NodeType::Header:
        return described<openapi::Header>(node);
    case NodeType::Tag:
        return described<openapi::Tag>(node);
    case NodeType::SecurityScheme:
    case NodeType::ApiKeySecurityScheme:
    case NodeType::HTTPSecurityScheme:
    case NodeType::MutualTLSSecurityScheme:
    case NodeType::OAuth2SecurityScheme:
    case NodeType::OpenIdConnectSecurityScheme:
        return described<openapi::SecurityScheme>(node);
    default:
        return {};
    }
}

void MarkdownTextsHandler::visit(const openapi::Node& node) {
    show(node);
    for (const openapi::Reference* reference = node.firstReference(); reference != nullptr;
         reference = reference->nextReference())
        show(*reference);
}

void MarkdownTextsHandler::show(const openapi::Node& node) {
    const NodeTexts texts = textsOf(node);
    if (!texts.isEmpty() && !isDisabled(node))
        visitTexts(node, texts);
}

} // namespace specloom::openapi_lint
