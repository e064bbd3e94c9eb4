#pragma once

#include <cstddef>     // std::size_t
#include <cstdint>     // std::uint8_t
#include <string_view> // std::string_view

namespace specloom::openapi {

/// The keywords that a schema keeps, other than its types, in the order in which they are written.
enum class SchemaKeyword : std::uint8_t {
    Id,
    Dialect,
    Title,
    Description,
    Comment,
    Anchor,
    DynamicAnchor,
    DynamicRef,
    Vocabulary,
    Default,
    Format,
    Enum, ///< `const` is an `enum` of one value
    Deprecated,
    ReadOnly,
    WriteOnly,
    Definitions, ///< `$defs` and `definitions`
    Examples,
    MultipleOf,
    Maximum,
    ExclusiveMaximum,
    Minimum,
    ExclusiveMinimum,
    MaxLength,
    MinLength,
    Pattern,
    ContentEncoding,
    ContentMediaType,
    ContentSchema,
    MaxItems,
    MinItems,
    UniqueItems,
    PrefixItems,
    Items,
    AdditionalItems,
    Contains,
    MaxContains,
    MinContains,
    UnevaluatedItems,
    MaxProperties,
    MinProperties,
    Required,
    Properties,
    PatternProperties,
    AdditionalProperties,
    PropertyNames,
    DependentRequired,
    DependentSchemas,
    UnevaluatedProperties,
    AllOf,
    OneOf,
    AnyOf,
    Not,
    If,
    Then,
    Else,
    Discriminator,
    XML,
    ExternalDocs,
};

inline constexpr std::size_t schemaKeywordCount = static_cast<std::size_t>(SchemaKeyword::ExternalDocs) + 1;

} // namespace specloom::openapi
