#include "openapi_diff/formatters/utils.h"

#include <fmt/format.h>

#include "foundation/printable.h"
#include "foundation/unreachable.h"

namespace specloom::openapi_diff {
namespace {

using openapi::NodeType;

struct MetadataFieldRow {
    MetadataField field;
    MetadataFieldName name;
};
constexpr MetadataFieldRow metadataFieldTable[] = {
    {MetadataField::Title, {"title", "title"}},
    {MetadataField::Summary, {"summary", "summary"}},
    {MetadataField::Description, {"description", "description"}},
    {MetadataField::TermsOfService, {"termsOfService", "terms of service"}},
    {MetadataField::Contact, {"contact", "contact"}},
    {MetadataField::License, {"license", "license"}},
};

} // namespace

std::string_view nodeKindText(const openapi::Node& node) {
    switch (node.type()) {
    case NodeType::OpenAPI:
        return "openapi";
    case NodeType::Info:
        return "info";
    case NodeType::Contact:
        return "contact";
    case NodeType::License:
        return "license";
    case NodeType::Server:
        return "server";
    case NodeType::ServerVariable:
        return "server_variable";
    case NodeType::Components:
        return "components";
    case NodeType::Paths:
        return "paths";
    case NodeType::PathItem:
        return node.parent() == node.root() ? "webhook" : "path_item";
    case NodeType::Operation:
        return "operation";
    case NodeType::ExternalDocumentation:
        return "external_documentation";
    case NodeType::Parameter:
    case NodeType::PathParameter:
    case NodeType::QueryParameter:
    case NodeType::HeaderParameter:
    case NodeType::CookieParameter:
        return "parameter";
    case NodeType::RequestBody:
        return "request_body";
    case NodeType::MediaType:
        return "media_type";
    case NodeType::Encoding:
        return "encoding";
    case NodeType::Responses:
        return "responses";
    case NodeType::Response:
        return "response";
    case NodeType::Callback:
        return "callback";
    case NodeType::Example:
        return "example";
    case NodeType::Link:
        return "link";
    case NodeType::Header:
        return "header";
    case NodeType::Tag:
        return "tag";
    case NodeType::Reference:
        return "reference";
    case NodeType::Schema:
        return "schema";
    case NodeType::Discriminator:
        return "discriminator";
    case NodeType::XML:
        return "xml";
    case NodeType::SecurityScheme:
    case NodeType::ApiKeySecurityScheme:
    case NodeType::HTTPSecurityScheme:
    case NodeType::MutualTLSSecurityScheme:
    case NodeType::OAuth2SecurityScheme:
    case NodeType::OpenIdConnectSecurityScheme:
        return "security_scheme";
    case NodeType::OAuthFlows:
        return "oauth_flows";
    case NodeType::OAuthFlow:
    case NodeType::ImplicitOAuthFlow:
    case NodeType::PasswordOAuthFlow:
    case NodeType::ClientCredentialsOAuthFlow:
    case NodeType::AuthorizationCodeOAuthFlow:
        return "oauth_flow";
    case NodeType::SecurityRequirement:
        return "security_requirement";
    }
    SPECLOOM_UNREACHABLE(nullptr);
}

std::string changeText(const Change& change) {
    const std::string_view target = nodeKindText(*change.node);
    const std::string name = printable(change.name);
    switch (change.kind) {
    case ChangeKind::ExtensionAdded:
    case ChangeKind::ExtensionRemoved:
    case ChangeKind::ExtensionModified:
        return fmt::format("{}: {}", target, name);
    case ChangeKind::KeyAdded:
    case ChangeKind::KeyRemoved:
    case ChangeKind::KeyModified:
        return fmt::format("{}: {} {}", target, configKeyText(change.key), name);
    case ChangeKind::ElementAdded:
    case ChangeKind::ElementRemoved:
    case ChangeKind::ElementModified:
        return fmt::format("{}: {} {}", target, configKeyText(change.key), change.index);
    default:
        return fmt::format("{}: {}", target, configKeyText(change.key));
    }
}

std::vector<MetadataFieldName> metadataFieldNames(const ChangelogReport& report) {
    std::vector<MetadataFieldName> names;
    for (const MetadataFieldRow& row : metadataFieldTable)
        if (report.hasMetadataField(row.field))
            names.push_back(row.name);
    return names;
}

} // namespace specloom::openapi_diff
