#include "code_morph_astro/attributes.h"
#include "markdown/safety.h"
#include "openapi_generator_doc_html/components.h"

#include <utility> // std::pair

namespace specloom::openapi_generator::doc_html {
namespace {

using code_morph::astro::Attributes;
using code_morph::astro::ObjectLiteral;

/// A URL that a component may make a link of or, where a page should not have such a link, the same as a
/// text: by another name.
/// `Members` is Attributes or ObjectLiteral.
template <typename Members>
void addUrl(std::string_view name, std::optional<std::string_view> url, Members& members) {
    if (url)
        members.text(markdown::isSafeDestination(*url) ? std::string(name) : std::string(name) + "Text",
                     *url);
}

std::string contactAttributes(const openapi::Contact& contact) {
    Attributes attributes;
    attributes.textIf("name", contact.name()).textIf("email", contact.email());
    addUrl("url", contact.url(), attributes);
    return attributes.take();
}

std::string licenseAttributes(const openapi::License& license) {
    Attributes attributes;
    attributes.text("name", license.name()).textIf("identifier", license.identifier());
    addUrl("url", license.url(), attributes);
    return attributes.take();
}

std::string variablesOf(const openapi::Server& server, const Texts& texts) {
    std::vector<std::string> variables;
    for (const auto& entry : server.variables()) {
        const auto* variable = openapi::resolveTo<openapi::ServerVariable>(entry.value.get());
        std::vector<std::string> values;
        for (const openapi::Text& value : variable->enumeration())
            values.emplace_back(value.view());
        ObjectLiteral literal;
        literal.text("name", entry.name()).text("default", variable->defaultValue());
        if (!values.empty())
            literal.literal("enum", code_morph::astro::toArrayLiteral(values));
        variables.push_back(literal.textIf("description", texts.translateIf(variable->description())).take());
    }
    return code_morph::astro::joinLiterals(variables);
}

std::string flowLiteral(const openapi::OAuthFlow& flow, const Texts& texts) {
    ObjectLiteral scopes;
    for (const auto& entry : flow.scopes())
        scopes.text(entry.name(), texts.translate(entry.value.view()));
    ObjectLiteral literal;
    addUrl("authorizationUrl", flow.authorizationUrl(), literal);
    addUrl("tokenUrl", flow.tokenUrl(), literal);
    addUrl("refreshUrl", flow.refreshUrl(), literal);
    return literal.literal("scopes", scopes.take()).take();
}

void addFlows(const openapi::OAuthFlows& flows, const Texts& texts, Attributes& attributes) {
    const std::pair<std::string_view, const openapi::OAuthFlow*> rows[] = {
        {"implicitFlow", flows.implicit()},
        {"passwordFlow", flows.password()},
        {"clientCredentialsFlow", flows.clientCredentials()},
        {"authorizationCodeFlow", flows.authorizationCode()}};
    for (const auto& [name, flow] : rows)
        if (flow != nullptr)
            attributes.literal(name, flowLiteral(*flow, texts));
}

/// What the fields of a scheme are called, by its type.
std::string schemeLabels(std::string_view type, const Texts& texts) {
    struct Row {
        std::string_view type, field, label;
    };
    constexpr Row rows[] = {{"apiKey", "keyName", "Name"},
                            {"apiKey", "in", "In"},
                            {"http", "scheme", "Scheme"},
                            {"http", "bearerFormat", "Bearer format"},
                            {"openIdConnect", "openIdConnectUrl", "OpenID Connect URL"},
                            {"oauth2", "flow", "Flow"},
                            {"oauth2", "authorizationUrl", "Authorization URL"},
                            {"oauth2", "tokenUrl", "Token URL"},
                            {"oauth2", "refreshUrl", "Refresh URL"},
                            {"oauth2", "scopes", "Scopes"}};
    ObjectLiteral labels;
    labels.text("type", texts.translate("Type"));
    for (const Row& row : rows)
        if (row.type == type)
            labels.text(row.field, texts.translate(row.label));
    return labels.take();
}

std::string schemeAttributes(std::string_view name, const openapi::SecurityScheme& scheme,
                             const Texts& texts) {
    Attributes attributes;
    attributes.text("name", name).text("type", scheme.typeName());
    if (const auto* apiKey = dynamic_cast<const openapi::ApiKeySecurityScheme*>(&scheme))
        attributes.text("keyName", apiKey->name())
            .text("in", openapi::apiKeyLocationName(apiKey->location()));
    else if (const auto* http = dynamic_cast<const openapi::HTTPSecurityScheme*>(&scheme))
        attributes.text("scheme", http->scheme()).textIf("bearerFormat", http->bearerFormat());
    else if (const auto* openId = dynamic_cast<const openapi::OpenIdConnectSecurityScheme*>(&scheme))
        addUrl("openIdConnectUrl", openId->openIdConnectUrl(), attributes);
    else if (const auto* oauth2 = dynamic_cast<const openapi::OAuth2SecurityScheme*>(&scheme))
        addFlows(oauth2->flows(), texts, attributes);
    return attributes.literal("labels", schemeLabels(scheme.typeName(), texts)).take();
}

} // namespace

void Overview::collect(jv::JV& data) {
    const openapi::Info& info = context().document->info();
    data.setString("attributes", attributes());
    data.setString("description", texts().describe(info.description()));
    if (info.contact() != nullptr)
        data.setString("contact", contactAttributes(*info.contact()));
    if (info.license() != nullptr)
        data.setString("license", licenseAttributes(*info.license()));
    addExternalDocs(context().document->externalDocs(), data);
    collectServers(data);
    collectTags(data);
    collectSecuritySchemes(data);
}

std::string Overview::attributes() const {
    const openapi::Info& info = context().document->info();
    Attributes attributes;
    attributes.text("title", texts().translate(info.title()))
        .text("version", info.version())
        .textIf("summary", texts().translateIf(info.summary()));
    addUrl("termsOfService", info.termsOfService(), attributes);
    constexpr std::pair<std::string_view, std::string_view> rows[] = {
        {"version", "Version"}, {"termsOfService", "Terms of service"},     {"contact", "Contact"},
        {"license", "License"}, {"externalDocs", "External documentation"}, {"servers", "Servers"},
        {"tags", "Tags"},       {"securitySchemes", "Security schemes"}};
    ObjectLiteral labels;
    for (const auto& [slot, label] : rows)
        labels.text(slot, texts().translate(label));
    return attributes.literal("labels", labels.take()).take();
}

void Overview::collectServers(jv::JV& data) const {
    jv::JV* list = data.setArray("servers");
    for (const auto& server : context().document->servers()) {
        Attributes attributes;
        addUrl("url", server->url(), attributes);
        if (!server->variables().empty())
            attributes.literal("variables", variablesOf(*server, texts()))
                .text("variablesLabel", texts().translate("Variables"));
        jv::JV* row = list->appendObject();
        row->setString("attributes", attributes.view());
        row->setString("description", texts().describe(server->description()));
    }
}

void Overview::collectTags(jv::JV& data) const {
    jv::JV* list = data.setArray("tags");
    for (const auto& tag : context().document->tags()) {
        Attributes attributes;
        attributes.text("name", texts().translate(tag->name()));
        if (site().grouper.groups().contains(tag->name()))
            attributes.text("href", site().urls.ofTag(tag->name(), locale()));
        jv::JV* row = list->appendObject();
        row->setString("attributes", attributes.view());
        row->setString("description", texts().describe(tag->description()));
        addExternalDocs(tag->externalDocs(), *row);
    }
}

void Overview::collectSecuritySchemes(jv::JV& data) const {
    jv::JV* list = data.setArray("securitySchemes");
    for (const auto& entry : context().document->components().securitySchemes()) {
        const auto* scheme = openapi::resolveTo<openapi::SecurityScheme>(entry.value.get());
        if (scheme == nullptr)
            continue;
        jv::JV* row = list->appendObject();
        row->setString("attributes", schemeAttributes(entry.name(), *scheme, texts()));
        row->setString("description", texts().describe(scheme->description()));
    }
}

void Overview::addExternalDocs(const openapi::ExternalDocumentation* docs, jv::JV& data) const {
    if (docs == nullptr)
        return;
    Attributes attributes;
    addUrl("href", docs->url(), attributes);
    const std::string_view description = docs->description().value_or("");
    jv::JV* link = data.setObject("externalDocs");
    link->setString("attributes", attributes.view());
    link->setString("text", description.empty() ? docs->url() : texts().translate(description));
}

} // namespace specloom::openapi_generator::doc_html
