// The structure of OpenAPI 3.0 and 3.1 documents: which kinds of object there are and where each of them
// stands. A new kind is one more row of `kinds`, a new place one more row of its owner's list.
//
// The two versions are taken together, and so are all keywords of JSON Schema from draft 4 to 2020-12 that
// hold schemas: a document that uses a member of the other version means the same by it.
//
// Only what is named here belongs to the structure. All else is payload, whose keys are the author's or their
// data's: values of examples, defaults, enumerations, constants, extensions, arguments of links, and the
// texts by name under "mapping", "scopes" and "dependentRequired".

#include "openapi_format/structure.h"

#include <algorithm> // std::ranges::all_of, std::ranges::find
#include <limits>    // std::numeric_limits

namespace specloom::openapi_format {

namespace {

using enum Shape;

constexpr Place openapi[] = {
    {"info", Object, "info"},
    {"servers", Array, "server"},
    {"paths", Object, "paths"},
    {"webhooks", Object, "webhooks"},
    {"components", Object, "components"},
    {"security", Array, "securityRequirement"},
    {"tags", Array, "tag"},
    {"externalDocs", Object, "externalDocumentation"},
};

constexpr Place info[] = {
    {"contact", Object, "contact"},
    {"license", Object, "license"},
};

constexpr Place server[] = {
    {"variables", Map, "serverVariable"},
};

constexpr Place pathItem[] = {
    {"get", Object, "operation"},     {"put", Object, "operation"},   {"post", Object, "operation"},
    {"delete", Object, "operation"},  {"head", Object, "operation"},  {"patch", Object, "operation"},
    {"options", Object, "operation"}, {"trace", Object, "operation"}, {"parameters", Array, "parameter"},
    {"servers", Array, "server"},
};

constexpr Place operation[] = {
    {"externalDocs", Object, "externalDocumentation"},
    {"parameters", Array, "parameter"},
    {"requestBody", Object, "requestBody"},
    {"responses", Object, "responses"},
    {"callbacks", Map, "callback"},
    {"security", Array, "securityRequirement"},
    {"servers", Array, "server"},
};

constexpr Place components[] = {
    {"schemas", Map, "schema"},
    {"responses", Map, "response"},
    {"parameters", Map, "parameter"},
    {"requestBodies", Map, "requestBody"},
    {"headers", Map, "header"},
    {"pathItems", Map, "pathItem"},
    {"securitySchemes", Map, "securityScheme"},
    {"links", Map, "link"},
    {"callbacks", Map, "callback"},
    {"examples", Map, "example"},
};

// Of parameters and headers alike.
constexpr Place parameter[] = {
    {"schema", Object, "schema"},
    {"content", Map, "mediaType"},
    {"examples", Map, "example"},
};

constexpr Place requestBody[] = {
    {"content", Map, "mediaType"},
};

constexpr Place mediaType[] = {
    {"schema", Object, "schema"},
    {"encoding", Map, "encoding"},
    {"examples", Map, "example"},
};

constexpr Place encoding[] = {
    {"headers", Map, "header"},
};

constexpr Place response[] = {
    {"headers", Map, "header"},
    {"content", Map, "mediaType"},
    {"links", Map, "link"},
};

constexpr Place link[] = {
    {"server", Object, "server"},
};

constexpr Place tag[] = {
    {"externalDocs", Object, "externalDocumentation"},
};

constexpr Place schema[] = {
    {"items", ObjectOrArray, "schema"},
    {"prefixItems", Array, "schema"},
    {"additionalItems", Object, "schema"},
    {"unevaluatedItems", Object, "schema"},
    {"contains", Object, "schema"},
    {"properties", Map, "schema"},
    {"patternProperties", Map, "schema"},
    {"propertyNames", Object, "schema"},
    {"additionalProperties", Object, "schema"},
    {"unevaluatedProperties", Object, "schema"},
    {"dependentSchemas", Map, "schema"},
    {"dependencies", Map, "schema"},
    {"allOf", Array, "schema"},
    {"oneOf", Array, "schema"},
    {"anyOf", Array, "schema"},
    {"not", Object, "schema"},
    {"if", Object, "schema"},
    {"then", Object, "schema"},
    {"else", Object, "schema"},
    {"contentSchema", Object, "schema"},
    {"$defs", Map, "schema"},
    {"definitions", Map, "schema"},
    {"discriminator", Object, "discriminator"},
    {"xml", Object, "xml"},
    {"externalDocs", Object, "externalDocumentation"},
};

constexpr Place securityScheme[] = {
    {"flows", Object, "oauthFlows"},
};

constexpr Place oauthFlows[] = {
    {"implicit", Object, "oauthFlow"},
    {"password", Object, "oauthFlow"},
    {"clientCredentials", Object, "oauthFlow"},
    {"authorizationCode", Object, "oauthFlow"},
};

// A path item may have a "$ref" beside its own members and stays a path item. A schema with a "$ref" and
// further keywords is a schema too, as of OpenAPI 3.1, and its keywords take the order of schemas, whereas
// one that has only what a reference may have is a reference in both versions.
constexpr ObjectKind kinds[] = {
    {"openapi", openapi},
    {"info", info},
    {"contact", {}},
    {"license", {}},
    {"server", server},
    {"serverVariable", {}},
    {"paths", {}, References::None, {"pathItem"}},
    {"webhooks", {}, References::None, {"pathItem", true}},
    {"pathItem", pathItem},
    {"operation", operation},
    {"components", components},
    {"externalDocumentation", {}},
    {"parameter", parameter, References::All},
    {"requestBody", requestBody, References::All},
    {"mediaType", mediaType},
    {"encoding", encoding},
    {"responses", {}, References::None, {"response"}},
    {"response", response, References::All},
    {"callback", {}, References::All, {"pathItem"}},
    {"example", {}, References::All},
    {"link", link, References::All},
    {"header", parameter, References::All},
    {"tag", tag},
    {"reference", {}},
    {"schema", schema, References::Bare},
    {"discriminator", {}},
    {"xml", {}},
    {"securityScheme", securityScheme, References::All},
    {"oauthFlows", oauthFlows},
    {"oauthFlow", {}},
    {"securityRequirement", {}},
};

[[nodiscard]] constexpr bool isKind(std::string_view name) {
    return std::ranges::find(kinds, name, &ObjectKind::name) != std::end(kinds);
}

[[nodiscard]] constexpr bool namesOnlyKinds(const ObjectKind& kind) {
    return std::ranges::all_of(kind.places, isKind, &Place::kind) &&
           (kind.entries.kind.empty() || isKind(kind.entries.kind));
}

static_assert(std::ranges::all_of(kinds, namesOnlyKinds), "a place is of a kind that is not there");
static_assert(std::size(kinds) <= std::numeric_limits<std::uint8_t>::max());

} // namespace

std::span<const ObjectKind> objectKinds() noexcept {
    return kinds;
}

const ObjectKind* findObjectKind(std::string_view name) noexcept {
    const auto* kind = std::ranges::find(kinds, name, &ObjectKind::name);
    return kind == std::end(kinds) ? nullptr : kind;
}

std::uint8_t indexOfKind(std::string_view name) noexcept {
    return static_cast<std::uint8_t>(findObjectKind(name) - kinds);
}

} // namespace specloom::openapi_format
