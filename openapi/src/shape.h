#pragma once

#include "openapi/node_type.h"
#include "openapi/schema_keyword.h"

#include <algorithm>   // std::ranges::all_of, std::ranges::any_of, std::ranges::find
#include <array>       // std::array
#include <cstddef>     // std::size_t
#include <cstdint>     // std::uint8_t
#include <iterator>    // std::size
#include <optional>    // std::optional
#include <span>        // std::span
#include <string_view> // std::string_view

// The shape of OpenAPI 3.0 and 3.1 documents: which kinds of object there are, which members each of them
// has, and what stands there. It is said here and nowhere else; who works on documents takes it from here, or
// holds what it says itself against this at compile time:
//
//   the reader      makes the rows for schemas, and checks those for the other objects (ObjectReader)
//   the writer      makes the rows for schemas; a test holds the others' order against the tables
//   the visitor     makes the list of the keywords of schemas that lead on; a test holds the other objects
//   components      take their sections
//   openapi_format  makes its structure
//   openapi_diff    makes its sections and rows for schemas, and checks the fields of its table
//
// Tables and not classes, since consumers differ in the order in which they take the members, and in what
// they do with each; constant expressions and not data that is interpreted, since documents have members by
// the hundred thousand. Accessors of the node classes cannot be fed from here: their names are what people
// read. Both versions stand side by side, since a document that uses a member of the other version means the
// same by it.
//
// The members of a kind stand in the order in which they are written. What is not named here is no part of
// the shape but payload, whose keys are the author's: what examples, defaults, enumerations, constants and
// extensions consist of.
namespace specloom::openapi {

/// The kinds of object, in the order of their node types. Parameters of all locations are one kind, and so
/// are security schemes and OAuth flows of all types.
enum class ObjectKind : std::uint8_t {
    OpenAPI,
    Info,
    Contact,
    License,
    Server,
    ServerVariable,
    Components,
    Paths,
    PathItem,
    Operation,
    ExternalDocumentation,
    Parameter,
    RequestBody,
    MediaType,
    Encoding,
    Responses,
    Response,
    Callback,
    Example,
    Link,
    Header,
    Tag,
    Reference,
    Schema,
    Discriminator,
    XML,
    SecurityScheme,
    OAuthFlows,
    OAuthFlow,
    SecurityRequirement,
};

inline constexpr std::size_t objectKindCount = static_cast<std::size_t>(ObjectKind::SecurityRequirement) + 1;

/// What stands under a member.
enum class Content : std::uint8_t {
    Text,
    Flag,
    Number,
    Limit, ///< a flag in 3.0, a number elsewhere
    Count, ///< a number from 0
    Value, ///< any
    Texts, ///< an array of texts, where Arrangement::Map says that there are several of these
    Object,
};

/// How many of it, and how they stand.
enum class Arrangement : std::uint8_t {
    One,
    List,
    OneOrList,
    Map, ///< by names of the author's choice
};

/// What the reader does about a member that is not there.
enum class Presence : std::uint8_t {
    Optional,
    Required,  ///< refuses the document
    ToBeginAt, ///< refuses the document; the object is made of this member, so no row reads it
};

/// When a member is written.
enum class Written : std::uint8_t {
    Always,
    Only31, ///< not in documents of 3.0, which have no place for it or had none when it was decided
    Never,  ///< another name stands for it, or the tree does not keep it
};

/// When the reader takes a member of a schema, within one turn in the order of the table: what is said of a
/// schema may depend on what was read before, and faults are reported in the order in which they are met.
enum class ReadingTurn : std::uint8_t {
    Identity,
    Values, ///< types first, to which `nullable` adds
    Annotations,
    Assertions,
    Examples,
    OfOpenAPI,
};

struct MemberShape {
    std::string_view name;
    Content content;
    Arrangement arrangement;
    ObjectKind kind = {}; ///< of Content::Object
    Presence presence = Presence::Optional;
    Written written = Written::Always;
    /// The only one of the kind's types that has the member.
    std::optional<NodeType> onlyOf = std::nullopt;
    /// Of schemas: what the member is kept under. `type` is kept apart.
    std::optional<SchemaKeyword> keyword = std::nullopt;
    ReadingTurn reading = ReadingTurn::Assertions;
    /// When the visitor takes a member of a schema: lower numbers first, equal ones in the order of the
    /// table.
    std::uint8_t walking = 0;
    bool isRead = true; ///< by the tree; all others are followed by who works on values

    [[nodiscard]] constexpr bool belongsTo(NodeType type) const noexcept {
        return !onlyOf || *onlyOf == type;
    }
};

/// Which objects with a text under `$ref` are references in a place for objects of a kind.
enum class References : std::uint8_t {
    None, ///< or none whose other members do not count as well
    All,
    Bare, ///< those that have nothing but what a reference may have beside it
};

struct ObjectShape {
    std::string_view name; ///< in configurations
    std::span<const MemberShape> members;
    ObjectKind kind;
    NodeType firstType; ///< of its types, which follow one another
    References references = References::None;
    std::optional<ObjectKind> entries = std::nullopt; ///< of the members whose names are the author's

    [[nodiscard]] constexpr bool leadsTo(ObjectKind below) const {
        return entries == below || std::ranges::any_of(members, [&](const MemberShape& row) {
                   return row.content == Content::Object && row.kind == below;
               });
    }
};

namespace shape {

constexpr MemberShape member(std::string_view name, Content content,
                             Arrangement arrangement = Arrangement::One) {
    return {.name = name, .content = content, .arrangement = arrangement};
}
constexpr MemberShape text(std::string_view name) {
    return member(name, Content::Text);
}
constexpr MemberShape flag(std::string_view name) {
    return member(name, Content::Flag);
}
constexpr MemberShape value(std::string_view name) {
    return member(name, Content::Value);
}
constexpr MemberShape objects(std::string_view name, ObjectKind kind, Arrangement arrangement) {
    return {.name = name, .content = Content::Object, .arrangement = arrangement, .kind = kind};
}
constexpr MemberShape object(std::string_view name, ObjectKind kind) {
    return objects(name, kind, Arrangement::One);
}
constexpr MemberShape list(std::string_view name, ObjectKind kind) {
    return objects(name, kind, Arrangement::List);
}
constexpr MemberShape map(std::string_view name, ObjectKind kind) {
    return objects(name, kind, Arrangement::Map);
}

constexpr MemberShape required(MemberShape row) {
    row.presence = Presence::Required;
    return row;
}
constexpr MemberShape toBeginAt(MemberShape row) {
    row.presence = Presence::ToBeginAt;
    return row;
}
constexpr MemberShape only(NodeType type, MemberShape row) {
    row.onlyOf = type;
    return row;
}

// ---- the document

using enum Arrangement;
using K = ObjectKind;

inline constexpr MemberShape openapi[] = {
    required(text("openapi")),
    required(object("info", K::Info)),
    text("jsonSchemaDialect"),
    list("servers", K::Server),
    object("components", K::Components),
    object("paths", K::Paths),
    map("webhooks", K::PathItem),
    list("security", K::SecurityRequirement),
    list("tags", K::Tag),
    object("externalDocs", K::ExternalDocumentation),
};

inline constexpr MemberShape info[] = {
    required(text("title")),       text("summary"),
    text("description"),           text("termsOfService"),
    object("contact", K::Contact), object("license", K::License),
    required(text("version")),
};

inline constexpr MemberShape contact[] = {text("name"), text("url"), text("email")};

inline constexpr MemberShape license[] = {toBeginAt(text("name")), text("identifier"), text("url")};

inline constexpr MemberShape server[] = {
    toBeginAt(text("url")),
    text("description"),
    map("variables", K::ServerVariable),
};

inline constexpr MemberShape serverVariable[] = {
    member("enum", Content::Texts),
    text("default"),
    text("description"),
};

inline constexpr MemberShape tag[] = {
    toBeginAt(text("name")),
    text("description"),
    object("externalDocs", K::ExternalDocumentation),
};

inline constexpr MemberShape externalDocumentation[] = {toBeginAt(text("url")), text("description")};

// In the order of ComponentSection.
inline constexpr MemberShape components[] = {
    map("schemas", K::Schema),
    map("responses", K::Response),
    map("parameters", K::Parameter),
    map("examples", K::Example),
    map("requestBodies", K::RequestBody),
    map("headers", K::Header),
    map("securitySchemes", K::SecurityScheme),
    map("links", K::Link),
    map("callbacks", K::Callback),
    map("pathItems", K::PathItem),
};

// ---- paths and operations

inline constexpr MemberShape pathItem[] = {
    text("summary"),
    text("description"),
    object("get", K::Operation),
    object("put", K::Operation),
    object("post", K::Operation),
    object("delete", K::Operation),
    object("options", K::Operation),
    object("head", K::Operation),
    object("patch", K::Operation),
    object("trace", K::Operation),
    list("parameters", K::Parameter),
    list("servers", K::Server),
};

inline constexpr MemberShape operation[] = {
    member("tags", Content::Texts),
    text("summary"),
    text("description"),
    object("externalDocs", K::ExternalDocumentation),
    text("operationId"),
    list("parameters", K::Parameter),
    object("requestBody", K::RequestBody),
    object("responses", K::Responses),
    map("callbacks", K::Callback),
    flag("deprecated"),
    list("security", K::SecurityRequirement),
    list("servers", K::Server),
};

inline constexpr MemberShape response[] = {
    text("description"),
    map("headers", K::Header),
    map("content", K::MediaType),
    map("links", K::Link),
};

// ---- what requests and responses consist of

inline constexpr MemberShape parameter[] = {
    toBeginAt(text("name")),
    toBeginAt(text("in")),
    text("description"),
    flag("deprecated"),
    flag("required"),
    only(NodeType::QueryParameter, flag("allowEmptyValue")),
    text("style"),
    flag("explode"),
    only(NodeType::QueryParameter, flag("allowReserved")),
    value("example"),
    map("examples", K::Example),
    object("schema", K::Schema),
    map("content", K::MediaType),
};

inline constexpr MemberShape header[] = {
    text("description"),
    flag("deprecated"),
    flag("required"),
    flag("allowEmptyValue"),
    text("style"),
    flag("explode"),
    flag("allowReserved"),
    value("example"),
    map("examples", K::Example),
    object("schema", K::Schema),
    map("content", K::MediaType),
};

inline constexpr MemberShape requestBody[] = {
    text("description"),
    map("content", K::MediaType),
    flag("required"),
};

inline constexpr MemberShape mediaType[] = {
    object("schema", K::Schema),
    value("example"),
    map("examples", K::Example),
    map("encoding", K::Encoding),
};

inline constexpr MemberShape encoding[] = {
    text("contentType"), map("headers", K::Header), text("style"), flag("explode"), flag("allowReserved"),
};

inline constexpr MemberShape example[] = {
    text("summary"),
    text("description"),
    value("value"),
    text("externalValue"),
};

inline constexpr MemberShape link[] = {
    text("operationRef"), text("operationId"), member("parameters", Content::Value, Map),
    value("requestBody"), text("description"), object("server", K::Server),
};

inline constexpr MemberShape reference[] = {toBeginAt(text("$ref")), text("summary"), text("description")};

// ---- schemas

using enum Content;
using S = SchemaKeyword;

constexpr MemberShape keyword(SchemaKeyword kept, std::string_view name, Content content,
                              Arrangement arrangement = One) {
    MemberShape row = member(name, content, arrangement);
    row.keyword = kept;
    return row;
}
constexpr MemberShape keyword(SchemaKeyword kept, std::string_view name, ObjectKind kind,
                              Arrangement arrangement = One) {
    MemberShape row = objects(name, kind, arrangement);
    row.keyword = kept;
    return row;
}
constexpr MemberShape only31(MemberShape row) {
    row.written = Written::Only31;
    return row;
}
constexpr MemberShape unwritten(MemberShape row) {
    row.written = Written::Never;
    return row;
}
constexpr MemberShape unread(MemberShape row) {
    row.isRead = false;
    return unwritten(row);
}
constexpr MemberShape read(ReadingTurn turn, MemberShape row) {
    row.reading = turn;
    return row;
}
constexpr MemberShape walkedLast(std::uint8_t turn, MemberShape row) {
    row.walking = turn;
    return row;
}

inline constexpr auto identity = ReadingTurn::Identity;
inline constexpr auto values = ReadingTurn::Values;
inline constexpr auto annotations = ReadingTurn::Annotations;
inline constexpr auto examples = ReadingTurn::Examples;
inline constexpr auto own = ReadingTurn::OfOpenAPI;

inline constexpr MemberShape schema[] = {
    read(identity, only31(keyword(S::Id, "$id", Text))),
    read(identity, keyword(S::Dialect, "$schema", Text)),
    read(annotations, keyword(S::Title, "title", Text)),
    read(annotations, keyword(S::Description, "description", Text)),
    read(annotations, only31(keyword(S::Comment, "$comment", Text))),
    read(annotations, only31(keyword(S::Anchor, "$anchor", Text))),
    read(annotations, only31(keyword(S::DynamicAnchor, "$dynamicAnchor", Text))),
    read(annotations, only31(keyword(S::DynamicRef, "$dynamicRef", Text))),
    read(annotations, only31(keyword(S::Vocabulary, "$vocabulary", Text))),
    read(annotations, only31(keyword(S::Default, "default", Value))),
    read(values, member("type", Text, OneOrList)),
    keyword(S::Format, "format", Text),
    read(values, unwritten(keyword(S::Enum, "const", Value))), // an `enum` of one value, in the tree
    read(values, keyword(S::Enum, "enum", Value, List)),
    read(annotations, only31(keyword(S::Deprecated, "deprecated", Flag))),
    read(annotations, only31(keyword(S::ReadOnly, "readOnly", Flag))),
    read(annotations, only31(keyword(S::WriteOnly, "writeOnly", Flag))),
    read(annotations, unwritten(keyword(S::Definitions, "$defs", K::Schema, Map))),
    read(annotations, walkedLast(1, only31(keyword(S::Definitions, "definitions", K::Schema, Map)))),
    read(annotations, unwritten(member("nullable", Flag))), // one of the types, in the tree
    read(examples, only31(keyword(S::Examples, "examples", Value, Map))),
    keyword(S::MultipleOf, "multipleOf", Number),
    keyword(S::Maximum, "maximum", Number),
    keyword(S::ExclusiveMaximum, "exclusiveMaximum", Limit),
    keyword(S::Minimum, "minimum", Number),
    keyword(S::ExclusiveMinimum, "exclusiveMinimum", Limit),
    keyword(S::MaxLength, "maxLength", Count),
    keyword(S::MinLength, "minLength", Count),
    keyword(S::Pattern, "pattern", Text),
    only31(keyword(S::ContentEncoding, "contentEncoding", Text)),
    only31(keyword(S::ContentMediaType, "contentMediaType", Text)),
    only31(keyword(S::ContentSchema, "contentSchema", K::Schema)),
    keyword(S::MaxItems, "maxItems", Count),
    keyword(S::MinItems, "minItems", Count),
    keyword(S::UniqueItems, "uniqueItems", Flag),
    keyword(S::PrefixItems, "prefixItems", K::Schema, List),
    keyword(S::Items, "items", K::Schema, OneOrList), // the tree knows one; a list is of older drafts
    only31(keyword(S::AdditionalItems, "additionalItems", K::Schema)),
    only31(keyword(S::Contains, "contains", K::Schema)),
    only31(keyword(S::MaxContains, "maxContains", Count)),
    only31(keyword(S::MinContains, "minContains", Count)),
    only31(keyword(S::UnevaluatedItems, "unevaluatedItems", K::Schema)),
    keyword(S::MaxProperties, "maxProperties", Count),
    keyword(S::MinProperties, "minProperties", Count),
    keyword(S::Required, "required", Texts),
    keyword(S::Properties, "properties", K::Schema, Map),
    keyword(S::PatternProperties, "patternProperties", K::Schema, Map),
    keyword(S::AdditionalProperties, "additionalProperties", K::Schema),
    keyword(S::PropertyNames, "propertyNames", K::Schema),
    only31(keyword(S::DependentRequired, "dependentRequired", Texts, Map)),
    only31(keyword(S::DependentSchemas, "dependentSchemas", K::Schema, Map)),
    unread(objects("dependencies", K::Schema, Map)), // of older drafts
    only31(keyword(S::UnevaluatedProperties, "unevaluatedProperties", K::Schema)),
    keyword(S::AllOf, "allOf", K::Schema, List),
    keyword(S::OneOf, "oneOf", K::Schema, List),
    keyword(S::AnyOf, "anyOf", K::Schema, List),
    keyword(S::Not, "not", K::Schema),
    only31(keyword(S::If, "if", K::Schema)),
    only31(keyword(S::Then, "then", K::Schema)),
    only31(keyword(S::Else, "else", K::Schema)),
    read(own, walkedLast(3, keyword(S::Discriminator, "discriminator", K::Discriminator))),
    read(own, walkedLast(2, keyword(S::XML, "xml", K::XML))),
    read(own, walkedLast(4, keyword(S::ExternalDocs, "externalDocs", K::ExternalDocumentation))),
};

inline constexpr MemberShape discriminator[] = {
    toBeginAt(text("propertyName")),
    member("mapping", Text, Map),
};

inline constexpr MemberShape xml[] = {
    text("name"), text("namespace"), text("prefix"), flag("attribute"), flag("wrapped"),
};

// ---- security

inline constexpr MemberShape securityScheme[] = {
    toBeginAt(text("type")),
    text("description"),
    only(NodeType::ApiKeySecurityScheme, toBeginAt(text("name"))),
    only(NodeType::ApiKeySecurityScheme, toBeginAt(text("in"))),
    only(NodeType::HTTPSecurityScheme, toBeginAt(text("scheme"))),
    only(NodeType::HTTPSecurityScheme, text("bearerFormat")),
    only(NodeType::OAuth2SecurityScheme, object("flows", K::OAuthFlows)),
    only(NodeType::OpenIdConnectSecurityScheme, toBeginAt(text("openIdConnectUrl"))),
};

inline constexpr MemberShape oauthFlows[] = {
    object("implicit", K::OAuthFlow),
    object("password", K::OAuthFlow),
    object("clientCredentials", K::OAuthFlow),
    object("authorizationCode", K::OAuthFlow),
};

inline constexpr MemberShape oauthFlow[] = {
    text("authorizationUrl"),
    text("tokenUrl"),
    text("refreshUrl"),
    member("scopes", Text, Map),
};

} // namespace shape

// ---- all kinds

// A path item may have a "$ref" beside its own members and stays a path item. A schema with a "$ref" and
// further keywords is a schema too, as of OpenAPI 3.1, whereas one that has only what a reference may have is
// a reference in both versions.
inline constexpr ObjectShape objectShapes[] = {
    {"openapi", shape::openapi, ObjectKind::OpenAPI, NodeType::OpenAPI},
    {"info", shape::info, ObjectKind::Info, NodeType::Info},
    {"contact", shape::contact, ObjectKind::Contact, NodeType::Contact},
    {"license", shape::license, ObjectKind::License, NodeType::License},
    {"server", shape::server, ObjectKind::Server, NodeType::Server},
    {"serverVariable", shape::serverVariable, ObjectKind::ServerVariable, NodeType::ServerVariable},
    {"components", shape::components, ObjectKind::Components, NodeType::Components},
    {"paths", {}, ObjectKind::Paths, NodeType::Paths, References::None, ObjectKind::PathItem},
    {"pathItem", shape::pathItem, ObjectKind::PathItem, NodeType::PathItem},
    {"operation", shape::operation, ObjectKind::Operation, NodeType::Operation},
    {"externalDocumentation", shape::externalDocumentation, ObjectKind::ExternalDocumentation,
     NodeType::ExternalDocumentation},
    {"parameter", shape::parameter, ObjectKind::Parameter, NodeType::Parameter, References::All},
    {"requestBody", shape::requestBody, ObjectKind::RequestBody, NodeType::RequestBody, References::All},
    {"mediaType", shape::mediaType, ObjectKind::MediaType, NodeType::MediaType},
    {"encoding", shape::encoding, ObjectKind::Encoding, NodeType::Encoding},
    {"responses", {}, ObjectKind::Responses, NodeType::Responses, References::None, ObjectKind::Response},
    {"response", shape::response, ObjectKind::Response, NodeType::Response, References::All},
    {"callback", {}, ObjectKind::Callback, NodeType::Callback, References::All, ObjectKind::PathItem},
    {"example", shape::example, ObjectKind::Example, NodeType::Example, References::All},
    {"link", shape::link, ObjectKind::Link, NodeType::Link, References::All},
    {"header", shape::header, ObjectKind::Header, NodeType::Header, References::All},
    {"tag", shape::tag, ObjectKind::Tag, NodeType::Tag},
    {"reference", shape::reference, ObjectKind::Reference, NodeType::Reference},
    {"schema", shape::schema, ObjectKind::Schema, NodeType::Schema, References::Bare},
    {"discriminator", shape::discriminator, ObjectKind::Discriminator, NodeType::Discriminator},
    {"xml", shape::xml, ObjectKind::XML, NodeType::XML},
    {"securityScheme", shape::securityScheme, ObjectKind::SecurityScheme, NodeType::SecurityScheme,
     References::All},
    {"oauthFlows", shape::oauthFlows, ObjectKind::OAuthFlows, NodeType::OAuthFlows},
    {"oauthFlow", shape::oauthFlow, ObjectKind::OAuthFlow, NodeType::OAuthFlow},
    {"securityRequirement", {}, ObjectKind::SecurityRequirement, NodeType::SecurityRequirement},
};

[[nodiscard]] constexpr const ObjectShape& shapeOf(ObjectKind kind) noexcept {
    return objectShapes[static_cast<std::size_t>(kind)];
}

namespace shape {

inline constexpr auto kindsByType = [] {
    std::array<ObjectKind, nodeTypeCount> kinds{};
    for (const ObjectShape& shape : objectShapes) // the later ones overwrite what is theirs
        for (auto type = static_cast<std::size_t>(shape.firstType); type < kinds.size(); ++type)
            kinds[type] = shape.kind;
    return kinds;
}();

} // namespace shape

/// The kind of the objects of a type.
[[nodiscard]] constexpr ObjectKind kindOf(NodeType type) noexcept {
    return shape::kindsByType[static_cast<std::size_t>(type)];
}

/// The shape of the kind of that name, or null.
[[nodiscard]] constexpr const ObjectShape* findShape(std::string_view name) noexcept {
    const auto* const found = std::ranges::find(objectShapes, name, &ObjectShape::name);
    return found == std::end(objectShapes) ? nullptr : found;
}

/// The member of that name, or null.
[[nodiscard]] constexpr const MemberShape* findMember(ObjectKind kind, std::string_view name) noexcept {
    for (const MemberShape& member : shapeOf(kind).members)
        if (member.name == name)
            return &member;
    return nullptr;
}

/// Of a path item: whether the member is one of the operations.
[[nodiscard]] constexpr bool isOperation(const MemberShape& member) noexcept {
    return member.content == Content::Object && member.kind == ObjectKind::Operation;
}

// ---- what the tables promise

static_assert(std::size(objectShapes) == objectKindCount, "a shape for each kind of object");

static_assert(
    [] {
        for (std::size_t at = 0; at < objectKindCount; ++at)
            if (objectShapes[at].kind != static_cast<ObjectKind>(at) ||
                (at > 0 && objectShapes[at].firstType <= objectShapes[at - 1].firstType))
                return false;
        return true;
    }(),
    "shapes stand in the order of ObjectKind and of their types");

static_assert(std::ranges::all_of(objectShapes,
                                  [](const ObjectShape& sought) {
                                      return sought.kind == ObjectKind::OpenAPI ||
                                             sought.kind == ObjectKind::Reference ||
                                             std::ranges::any_of(objectShapes, [&](const ObjectShape& shape) {
                                                 return shape.leadsTo(sought.kind);
                                             });
                                  }),
              "each kind stands somewhere");

static_assert(std::ranges::all_of(objectShapes,
                                  [](const ObjectShape& shape) {
                                      return std::ranges::all_of(shape.members, [&](const MemberShape& row) {
                                          return findMember(shape.kind, row.name) == &row;
                                      });
                                  }),
              "no kind has two members of one name");

static_assert(
    [] {
        std::size_t next = 0;
        for (const MemberShape& row : shape::schema) {
            if (row.keyword && row.written != Written::Never &&
                static_cast<std::size_t>(*row.keyword) != next++)
                return false;
        }
        return next == schemaKeywordCount;
    }(),
    "each SchemaKeyword is written as one member of schemas, in the order of the enumeration");

} // namespace specloom::openapi
