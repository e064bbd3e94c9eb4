#include "test_support/openapi_structure.h"

#include <algorithm> // std::find_if
#include <array>     // std::array
#include <map>       // std::map
#include <vector>    // std::vector

namespace specloom::test_support {

namespace {

using K = ObjectKind;

constexpr MemberInfo value(std::string_view key, Family family = Family::Both) {
    return {key, K::Any, Shape::One, WhenEmpty::Kept, family};
}
constexpr MemberInfo text(std::string_view key, Family family = Family::Both) {
    return {key, K::Text, Shape::One, WhenEmpty::Kept, family};
}
/// A list of values.
constexpr MemberInfo values(std::string_view key, Family family = Family::Both) {
    return {key, K::Any, Shape::List, WhenEmpty::LeftOut, family};
}
/// A map of values.
constexpr MemberInfo valueMap(std::string_view key, Family family = Family::Both) {
    return {key, K::Any, Shape::Map, WhenEmpty::LeftOut, family};
}
constexpr MemberInfo one(std::string_view key, K kind, Family family = Family::Both) {
    return {key, kind, Shape::One, WhenEmpty::Kept, family};
}
constexpr MemberInfo list(std::string_view key, K kind, Family family = Family::Both) {
    return {key, kind, Shape::List, WhenEmpty::LeftOut, family};
}
constexpr MemberInfo map(std::string_view key, K kind, Family family = Family::Both) {
    return {key, kind, Shape::Map, WhenEmpty::LeftOut, family};
}
constexpr MemberInfo kept(MemberInfo member) {
    member.whenEmpty = WhenEmpty::Kept;
    return member;
}
constexpr MemberInfo leftOut(MemberInfo member) {
    member.whenEmpty = WhenEmpty::LeftOut;
    return member;
}

constexpr Family only31 = Family::Only31;

using Table = std::map<K, std::vector<MemberInfo>>;

[[nodiscard]] std::vector<MemberInfo> parameter(std::vector<MemberInfo> own) {
    for (const MemberInfo& shared :
         {text("name"), value("in"), text("description"), value("required"), value("deprecated"),
          value("style"), value("explode"), value("example"), map("examples", K::Example),
          one("schema", K::Schema), map("content", K::MediaType)})
        own.push_back(shared);
    return own;
}

[[nodiscard]] std::vector<MemberInfo> schema() {
    std::vector<MemberInfo> members{
        value("type"),
        values("enum"),
        values("required"),
        map("properties", K::Schema),
        map("patternProperties", K::Schema),
        map("$defs", K::Schema, only31),
        map("definitions", K::Schema, only31),
        map("dependentSchemas", K::Schema, only31),
        valueMap("dependentRequired", only31),
        valueMap("examples", only31),
        one("discriminator", K::Discriminator),
        one("xml", K::XML),
        one("externalDocs", K::ExternalDocumentation),
    };
    for (const std::string_view key : {"title", "description", "pattern"})
        members.push_back(text(key));
    for (const std::string_view key :
         {"$id", "$comment", "$anchor", "$dynamicAnchor", "$dynamicRef", "$vocabulary"})
        members.push_back(text(key, only31));
    for (const std::string_view key :
         {"$schema", "format", "multipleOf", "maximum", "exclusiveMaximum", "minimum", "exclusiveMinimum",
          "maxLength", "minLength", "maxItems", "minItems", "uniqueItems", "maxProperties", "minProperties"})
        members.push_back(value(key));
    for (const std::string_view key : {"default", "deprecated", "readOnly", "writeOnly", "contentEncoding",
                                       "contentMediaType", "maxContains", "minContains"})
        members.push_back(value(key, only31));
    for (const std::string_view key : {"items", "additionalProperties", "propertyNames", "not"})
        members.push_back(one(key, K::Schema));
    for (const std::string_view key : {"contentSchema", "additionalItems", "contains", "unevaluatedItems",
                                       "unevaluatedProperties", "if", "then", "else"})
        members.push_back(one(key, K::Schema, only31));
    for (const std::string_view key : {"prefixItems", "allOf", "oneOf", "anyOf"})
        members.push_back(list(key, K::Schema));
    return members;
}

[[nodiscard]] Table makeTable() {
    Table table{
        {K::OpenAPI,
         {value("openapi"), one("info", K::Info), text("jsonSchemaDialect"), list("servers", K::Server),
          leftOut(one("components", K::Components)), one("paths", K::Paths), map("webhooks", K::PathItem),
          list("security", K::SecurityRequirement), list("tags", K::Tag),
          one("externalDocs", K::ExternalDocumentation)}},
        {K::Info,
         {text("title"), text("summary"), text("description"), text("termsOfService"),
          one("contact", K::Contact), one("license", K::License), value("version")}},
        {K::Contact, {text("name"), text("url"), text("email")}},
        {K::License, {text("name"), text("identifier"), text("url")}},
        {K::Server, {text("url"), text("description"), map("variables", K::ServerVariable)}},
        {K::ServerVariable, {values("enum"), text("default"), text("description")}},
        {K::Components,
         {map("schemas", K::Schema), map("responses", K::Response), map("parameters", K::Parameter),
          map("examples", K::Example), map("requestBodies", K::RequestBody), map("headers", K::Header),
          map("securitySchemes", K::SecurityScheme), map("links", K::Link), map("callbacks", K::Callback),
          map("pathItems", K::PathItem)}},
        {K::Paths, {one("*", K::PathItem)}},
        {K::PathItem,
         {text("summary"), text("description"), list("parameters", K::Parameter),
          list("servers", K::Server)}},
        {K::Operation,
         {values("tags"), text("summary"), text("description"), one("externalDocs", K::ExternalDocumentation),
          text("operationId"), list("parameters", K::Parameter), one("requestBody", K::RequestBody),
          one("responses", K::Responses), map("callbacks", K::Callback), value("deprecated"),
          kept(list("security", K::SecurityRequirement)), list("servers", K::Server)}},
        {K::ExternalDocumentation, {text("url"), text("description")}},
        {K::PathParameter, parameter({})},
        {K::QueryParameter, parameter({value("allowEmptyValue"), value("allowReserved")})},
        {K::HeaderParameter, parameter({})},
        {K::CookieParameter, parameter({})},
        {K::RequestBody, {text("description"), kept(map("content", K::MediaType)), value("required")}},
        {K::MediaType,
         {one("schema", K::Schema), value("example"), map("examples", K::Example),
          map("encoding", K::Encoding)}},
        {K::Encoding,
         {text("contentType"), map("headers", K::Header), value("style"), value("explode"),
          value("allowReserved")}},
        {K::Responses, {one("*", K::Response)}},
        {K::Response,
         {text("description"), map("headers", K::Header), map("content", K::MediaType),
          map("links", K::Link)}},
        {K::Callback, {one("*", K::PathItem)}},
        {K::Example, {text("summary"), text("description"), value("value"), text("externalValue")}},
        {K::Link,
         {text("operationRef"), text("operationId"), valueMap("parameters"), value("requestBody"),
          text("description"), one("server", K::Server)}},
        {K::Header,
         {text("description"), value("required"), value("deprecated"), value("allowEmptyValue"),
          value("style"), value("explode"), value("allowReserved"), value("example"),
          map("examples", K::Example), one("schema", K::Schema), map("content", K::MediaType)}},
        {K::Tag, {text("name"), text("description"), one("externalDocs", K::ExternalDocumentation)}},
        {K::Schema, schema()},
        {K::Discriminator, {value("propertyName"), valueMap("mapping")}},
        {K::XML, {text("name"), text("namespace"), text("prefix"), value("attribute"), value("wrapped")}},
        {K::ApiKeyScheme, {value("type"), text("description"), text("name"), value("in")}},
        {K::HttpScheme, {value("type"), text("description"), value("scheme"), text("bearerFormat")}},
        {K::MutualTLSScheme, {value("type"), text("description")}},
        {K::OAuth2Scheme, {value("type"), text("description"), one("flows", K::OAuthFlows)}},
        {K::OpenIdConnectScheme, {value("type"), text("description"), value("openIdConnectUrl")}},
        {K::OAuthFlows,
         {one("implicit", K::OAuthFlow), one("password", K::OAuthFlow),
          one("clientCredentials", K::OAuthFlow), one("authorizationCode", K::OAuthFlow)}},
        {K::OAuthFlow,
         {text("authorizationUrl"), text("tokenUrl"), text("refreshUrl"), kept(valueMap("scopes"))}},
        {K::SecurityRequirement, {value("*")}},
    };
    for (const std::string_view method :
         {"get", "put", "post", "delete", "options", "head", "patch", "trace"})
        table[K::PathItem].push_back(one(method, K::Operation));
    return table;
}

/// The kind for the text in a member of an object.
[[nodiscard]] K byText(const jv::JV& object, std::string_view key,
                       std::initializer_list<std::pair<std::string_view, K>> kinds) {
    const jv::JV* text = object.isObject() ? object.get(key) : nullptr;
    for (const auto& [name, kind] : kinds)
        if (text != nullptr && text->isString() && text->text() == name)
            return kind;
    return K::Any;
}

} // namespace

std::span<const MemberInfo> membersOf(ObjectKind kind) {
    static const Table table = makeTable();
    const auto found = table.find(kind);
    return found == table.end() ? std::span<const MemberInfo>() : std::span(found->second);
}

const MemberInfo* findMember(ObjectKind kind, std::string_view key) {
    const auto members = membersOf(kind);
    const auto named = [&](std::string_view wanted) {
        return std::find_if(members.begin(), members.end(),
                            [&](const MemberInfo& member) { return member.key == wanted; });
    };
    auto found = named(key);
    if (found == members.end() && !key.starts_with("x-"))
        found = named("*");
    return found == members.end() ? nullptr : &*found;
}

ObjectKind kindOf(ObjectKind kind, const jv::JV& value) {
    if (kind == K::Parameter)
        return byText(value, "in",
                      {{"path", K::PathParameter},
                       {"query", K::QueryParameter},
                       {"header", K::HeaderParameter},
                       {"cookie", K::CookieParameter}});
    if (kind == K::SecurityScheme)
        return byText(value, "type",
                      {{"apiKey", K::ApiKeyScheme},
                       {"http", K::HttpScheme},
                       {"mutualTLS", K::MutualTLSScheme},
                       {"oauth2", K::OAuth2Scheme},
                       {"openIdConnect", K::OpenIdConnectScheme}});
    return kind;
}

std::string_view nameOf(ObjectKind kind) {
    constexpr std::array<std::string_view, 40> names{
        "",
        "",
        "openapi",
        "info",
        "contact",
        "license",
        "server",
        "serverVariable",
        "components",
        "paths",
        "pathItem",
        "operation",
        "externalDocumentation",
        "parameter",
        "parameter",
        "parameter",
        "parameter",
        "parameter",
        "requestBody",
        "mediaType",
        "encoding",
        "responses",
        "response",
        "callback",
        "example",
        "link",
        "header",
        "tag",
        "schema",
        "discriminator",
        "xml",
        "securityScheme",
        "securityScheme",
        "securityScheme",
        "securityScheme",
        "securityScheme",
        "securityScheme",
        "oauthFlows",
        "oauthFlow",
        "securityRequirement",
    };
    return names.at(static_cast<std::size_t>(kind));
}

std::string_view sectionOf(ObjectKind kind) {
    for (const MemberInfo& section : membersOf(K::Components))
        if (section.kind == kind && kind != K::SecurityScheme)
            return section.key;
    return {};
}

} // namespace specloom::test_support
