#pragma once

#include "openapi/shape.h"
#include "openapi_diff/config_key.h"

#include <algorithm> // std::ranges::find
#include <array>     // std::array
#include <utility>   // std::pair

// What is known of the keys of the configuration, held against the shape of OpenAPI documents.
namespace specloom::openapi_diff {

namespace config_fields {

using enum EntryForm;

/// By ConfigKey.
inline constexpr std::array<ConfigField, configKeyCount> all{{
    {"openapi", "openapi", Field},
    {"openapi", "info", Field},
    {"openapi", "jsonSchemaDialect", Field},
    {"openapi", "servers", Item},
    {"openapi", "paths", Field},
    {"openapi", "webhooks", Item},
    {"openapi", "components", Field},
    {"openapi", "security", Item},
    {"openapi", "tags", Item},
    {"openapi", "externalDocs", Field},
    {"info", "title", Field},
    {"info", "summary", Field},
    {"info", "description", Field},
    {"info", "termsOfService", Field},
    {"info", "contact", Field},
    {"info", "license", Field},
    {"info", "version", Field},
    {"contact", "name", Field},
    {"contact", "url", Field},
    {"contact", "email", Field},
    {"license", "name", Field},
    {"license", "identifier", Field},
    {"license", "url", Field},
    {"server", "url", Field},
    {"server", "description", Field},
    {"server", "variables", Item},
    {"serverVariable", "description", Field},
    {"serverVariable", "default", Field},
    {"serverVariable", "enum", Item},
    {"components", "schemas", Item},
    {"components", "responses", Item},
    {"components", "parameters", Item},
    {"components", "examples", Item},
    {"components", "requestBodies", Item},
    {"components", "headers", Item},
    {"components", "securitySchemes", Item},
    {"components", "links", Item},
    {"components", "callbacks", Item},
    {"components", "pathItems", Item},
    {"paths", "", Item},
    {"pathItem", "summary", Field},
    {"pathItem", "description", Field},
    {"pathItem", "parameters", Item},
    {"pathItem", "operations", Item},
    {"pathItem", "servers", Item},
    {"operation", "tags", Item},
    {"operation", "summary", Field},
    {"operation", "operationId", Field},
    {"operation", "description", Field},
    {"operation", "externalDocs", Field},
    {"operation", "deprecated", ModifyOnly},
    {"operation", "parameters", Item},
    {"operation", "requestBody", Field},
    {"operation", "responses", Field},
    {"operation", "callbacks", Item},
    {"operation", "security", Item},
    {"operation", "servers", Item},
    {"externalDocumentation", "description", Field},
    {"externalDocumentation", "url", Field},
    {"parameter", "name", Field},
    {"parameter", "in", Field},
    {"parameter", "description", Field},
    {"parameter", "required", ModifyOnly},
    {"parameter", "deprecated", Field},
    {"parameter", "allowEmptyValue", ModifyOnly},
    {"parameter", "style", Field},
    {"parameter", "explode", Field},
    {"parameter", "allowReserved", ModifyOnly},
    {"parameter", "schema", Field},
    {"parameter", "content", Item},
    {"parameter", "example", Field},
    {"parameter", "examples", Item},
    {"requestBody", "description", Field},
    {"requestBody", "required", Conditional},
    {"requestBody", "content", Item},
    {"mediaType", "schema", Field},
    {"mediaType", "encoding", Item},
    {"mediaType", "example", Field},
    {"mediaType", "examples", Item},
    {"encoding", "contentType", Field},
    {"encoding", "headers", Item},
    {"encoding", "style", Field},
    {"encoding", "explode", Field},
    {"encoding", "allowReserved", Field},
    {"responses", "", Item},
    {"response", "description", Field},
    {"response", "headers", Item},
    {"response", "content", Item},
    {"response", "links", Item},
    {"callback", "", Item},
    {"example", "summary", Field},
    {"example", "description", Field},
    {"example", "value", Field},
    {"example", "externalValue", Field},
    {"link", "description", Field},
    {"link", "server", Field},
    {"link", "operationRef", Field},
    {"link", "operationId", Field},
    {"link", "parameters", Item},
    {"link", "requestBody", Field},
    {"header", "name", Field},
    {"header", "description", Field},
    {"header", "required", ModifyOnly},
    {"header", "deprecated", Field},
    {"header", "allowEmptyValue", Field},
    {"header", "explode", Field},
    {"header", "allowReserved", Field},
    {"header", "schema", Field},
    {"header", "content", Item},
    {"header", "example", Field},
    {"header", "examples", Item},
    {"tag", "name", Field},
    {"tag", "description", Field},
    {"tag", "externalDocs", Field},
    {"reference", "$ref", Field},
    {"reference", "summary", Field},
    {"reference", "description", Field},
    {"schema", "id", Field},
    {"schema", "title", Field},
    {"schema", "description", Field},
    {"schema", "type", Field},
    {"schema", "format", Field},
    {"schema", "const", Field},
    {"schema", "enum", Item},
    {"schema", "deprecated", ModifyOnly},
    {"schema", "readOnly", Field},
    {"schema", "writeOnly", Field},
    {"schema", "minimum", Field},
    {"schema", "exclusiveMinimum", Field},
    {"schema", "maximum", Field},
    {"schema", "exclusiveMaximum", Field},
    {"schema", "multipleOf", Field},
    {"schema", "minLength", Field},
    {"schema", "maxLength", Field},
    {"schema", "pattern", Field},
    {"schema", "items", Field},
    {"schema", "contains", Field},
    {"schema", "minContains", Field},
    {"schema", "maxContains", Field},
    {"schema", "prefixItems", Item},
    {"schema", "minItems", Field},
    {"schema", "maxItems", Field},
    {"schema", "uniqueItems", Field},
    {"schema", "unevaluatedItems", Field},
    {"schema", "required", Item},
    {"schema", "properties", Item},
    {"schema", "patternProperties", Item},
    {"schema", "propertyNames", Field},
    {"schema", "additionalProperties", Field},
    {"schema", "minProperties", Field},
    {"schema", "maxProperties", Field},
    {"schema", "unevaluatedProperties", Field},
    {"schema", "allOf", Item},
    {"schema", "oneOf", Item},
    {"schema", "anyOf", Item},
    {"schema", "not", Field},
    {"schema", "if", Field},
    {"schema", "then", Field},
    {"schema", "else", Field},
    {"schema", "anchor", Field},
    {"schema", "dynamicAnchor", Field},
    {"schema", "dynamicRef", Field},
    {"schema", "vocabulary", Field},
    {"schema", "contentEncoding", Field},
    {"schema", "contentMediaType", Field},
    {"schema", "contentSchema", Field},
    {"schema", "discriminator", Field},
    {"schema", "xml", Field},
    {"schema", "externalDocs", Field},
    {"schema", "examples", Field},
    {"schema", "default", Field},
    {"schema", "dialect", Field},
    {"discriminator", "propertyName", Field},
    {"discriminator", "mapping", Item},
    {"xml", "name", Field},
    {"xml", "namespace", Field},
    {"xml", "prefix", Field},
    {"xml", "attribute", Field},
    {"xml", "wrapped", Field},
    {"securityScheme", "name", Field},
    {"securityScheme", "description", Field},
    {"securityScheme", "type", Field},
    {"securityScheme", "in", Field},
    {"securityScheme", "scheme", Field},
    {"securityScheme", "bearerFormat", Field},
    {"securityScheme", "flows", Field},
    {"securityScheme", "openIdConnectUrl", Field},
    {"oauthFlows", "implicit", Field},
    {"oauthFlows", "password", Field},
    {"oauthFlows", "clientCredentials", Field},
    {"oauthFlows", "authorizationCode", Field},
    {"oauthFlow", "authorizationUrl", Field},
    {"oauthFlow", "tokenUrl", Field},
    {"oauthFlow", "refreshUrl", Field},
    {"oauthFlow", "scopes", Item},
    {"securityRequirement", "", Item},
}};

/// Fields whose names are not those of members.
inline constexpr std::pair<std::string_view, std::string_view> otherNames[] = {
    {"id", "$id"},
    {"anchor", "$anchor"},
    {"dynamicAnchor", "$dynamicAnchor"},
    {"dynamicRef", "$dynamicRef"},
    {"vocabulary", "$vocabulary"},
    {"dialect", "$schema"},
};

/// Members that are not compared.
inline constexpr std::pair<std::string_view, std::string_view> left[] = {
    {"header", "style"},
    {"schema", "$comment"},
    {"schema", "$defs"}, // schemas behind no reference
    {"schema", "definitions"},
    {"schema", "nullable"}, // one of the types
    {"schema", "additionalItems"},
    {"schema", "dependentRequired"},
    {"schema", "dependentSchemas"},
};

struct FieldShape {
    const openapi::ObjectShape* object;
    const openapi::MemberShape* member;
};

[[nodiscard]] constexpr FieldShape shapeOf(const ConfigField& field) {
    const openapi::ObjectShape* object = openapi::findShape(field.section);
    if (object == nullptr)
        return {nullptr, nullptr};
    std::string_view name = field.name;
    if (object->kind == openapi::ObjectKind::Schema)
        for (const auto& [other, member] : otherNames)
            if (name == other)
                name = member;
    return {object, openapi::findMember(object->kind, name)};
}

/// By ConfigKey: the member that a field is about. Null for a section that is a field by itself, for
/// `operations`, which stands for eight members, and for the name of a header, which is its key in a map.
inline constexpr auto shapes = [] {
    std::array<FieldShape, configKeyCount> table{};
    for (std::size_t key = 0; key < table.size(); ++key)
        table[key] = shapeOf(all[key]);
    return table;
}();

static_assert(
    [] {
        for (std::size_t key = 0; key < all.size(); ++key) {
            const auto& [object, member] = shapes[key];
            if (object == nullptr)
                return false;
            const bool isMember = member != nullptr || all[key].name == "operations" ||
                                  (object->kind == openapi::ObjectKind::Header && all[key].name == "name");
            if (all[key].name.empty() ? !object->members.empty() : !isMember)
                return false;
        }
        return true;
    }(),
    "a field of the configuration is no member in openapi/shape.h");

[[nodiscard]] constexpr bool isLeftOut(const openapi::ObjectShape& object,
                                       const openapi::MemberShape& member) {
    if (object.kind == openapi::ObjectKind::PathItem && openapi::isOperation(member))
        return true; // see `operations`
    for (const auto& [section, name] : left)
        if (section == object.name && name == member.name)
            return true;
    return !member.isRead;
}

static_assert(
    [] {
        for (const openapi::ObjectShape& object : openapi::objectShapes)
            for (const openapi::MemberShape& member : object.members) {
                const auto* const found = std::ranges::find(shapes, &member, &FieldShape::member);
                if ((found == shapes.end()) != isLeftOut(object, member))
                    return false;
            }
        return true;
    }(),
    "a member in openapi/shape.h has no field in the configuration, and is not among those left out");

} // namespace config_fields
} // namespace specloom::openapi_diff
