#pragma once

#include "jv/jv.h"

#include <cstdint>     // std::uint8_t
#include <span>        // std::span
#include <string_view> // std::string_view

namespace specloom::test_support {

// What the OpenAPI tree of the program keeps of a document, told once more for tests to judge by. It shares
// nothing with the reader and the writer.

enum class ObjectKind : std::uint8_t {
    Any,  ///< any value, kept as it is
    Text, ///< the same for a text, in whose place a null counts as nothing
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
    Parameter, ///< one of the next four, by its "in"
    PathParameter,
    QueryParameter,
    HeaderParameter,
    CookieParameter,
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
    Schema,
    Discriminator,
    XML,
    SecurityScheme, ///< one of the next five, by its "type"
    ApiKeyScheme,
    HttpScheme,
    MutualTLSScheme,
    OAuth2Scheme,
    OpenIdConnectScheme,
    OAuthFlows,
    OAuthFlow,
    SecurityRequirement,
};

enum class Shape : std::uint8_t { One, List, Map };

/// What becomes of a member that is an empty list or map (or an object that is left with nothing).
enum class WhenEmpty : std::uint8_t { LeftOut, Kept };

enum class Family : std::uint8_t { Both, Only31 };

struct MemberInfo {
    std::string_view key; ///< "*" for all that the kind has no other row for and that do not start with "x-"
    ObjectKind kind;      ///< of the value, or of its elements or entries
    Shape shape;
    WhenEmpty whenEmpty;
    Family family; ///< Only31: lost from a 3.0 document
};

/// The members that an object of this kind keeps, extensions apart.
[[nodiscard]] std::span<const MemberInfo> membersOf(ObjectKind kind);
/// Null for a member that is not kept.
[[nodiscard]] const MemberInfo* findMember(ObjectKind kind, std::string_view key);
/// The kind of `value` in a place for objects of `kind`.
[[nodiscard]] ObjectKind kindOf(ObjectKind kind, const jv::JV& value);
/// How configurations name objects of this kind, whatever their location or type; empty for plain values.
[[nodiscard]] std::string_view nameOf(ObjectKind kind);
/// The section of the components that a `$ref` in place of an object of this kind leads to; empty when none
/// may stand there.
[[nodiscard]] std::string_view sectionOf(ObjectKind kind);

} // namespace specloom::test_support
