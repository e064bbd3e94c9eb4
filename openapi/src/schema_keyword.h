#pragma once

#include <bit>     // std::countr_zero, std::popcount
#include <cstddef> // std::size_t
#include <cstdint> // std::uint8_t, std::uint64_t

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

/// A set of keywords.
class SchemaKeywords {
  public:
    [[nodiscard]] constexpr bool has(SchemaKeyword keyword) const noexcept {
        return (bits_ & bitOf(keyword)) != 0;
    }
    [[nodiscard]] constexpr bool meets(SchemaKeywords other) const noexcept {
        return (bits_ & other.bits_) != 0;
    }
    [[nodiscard]] constexpr std::size_t size() const noexcept {
        return static_cast<std::size_t>(std::popcount(bits_));
    }
    constexpr void add(SchemaKeyword keyword) noexcept { bits_ |= bitOf(keyword); }
    constexpr void remove(SchemaKeyword keyword) noexcept { bits_ &= ~bitOf(keyword); }
    /// Calls use(keyword) for each keyword of either set, in their order.
    template <typename Use>
    static constexpr void forEachOf(SchemaKeywords a, SchemaKeywords b, Use use) {
        for (std::uint64_t bits = a.bits_ | b.bits_; bits != 0; bits &= bits - 1)
            use(static_cast<SchemaKeyword>(std::countr_zero(bits)));
    }
    /// How many of the set come before `keyword`.
    [[nodiscard]] constexpr std::size_t rankOf(SchemaKeyword keyword) const noexcept {
        return static_cast<std::size_t>(std::popcount(bits_ & (bitOf(keyword) - 1)));
    }

  private:
    static_assert(schemaKeywordCount <= 64,
                  "a bit for each keyword: for more keywords make bits_ two words, and "
                  "give sizeof(Schema) in schema.h its new size");

    [[nodiscard]] static constexpr std::uint64_t bitOf(SchemaKeyword keyword) noexcept {
        return std::uint64_t{1} << static_cast<unsigned>(keyword);
    }

    std::uint64_t bits_ = 0;
};

} // namespace specloom::openapi
