#pragma once

#include "jv_generator/json_schema.h"
#include "number/number.h"
#include "regex/pattern.h"

#include <algorithm>     // std::minmax
#include <cstddef>       // std::size_t
#include <cstdint>       // std::uint8_t, std::uint32_t, std::uint64_t
#include <deque>         // std::deque
#include <map>           // std::map
#include <memory>        // std::unique_ptr
#include <optional>      // std::optional
#include <set>           // std::set
#include <string>        // std::string
#include <string_view>   // std::string_view
#include <unordered_map> // std::unordered_map
#include <utility>       // std::pair
#include <vector>        // std::vector

namespace specloom::jv_generator {

/// A set of kinds of value, in the order in which alternatives are made. Numbers are those that are integers
/// and those that are none.
using ValueKinds = std::uint8_t;

namespace value_kind {
inline constexpr ValueKinds null = 1;
inline constexpr ValueKinds boolean = 2;
inline constexpr ValueKinds integer = 4;
inline constexpr ValueKinds fraction = 8;
inline constexpr ValueKinds string = 16;
inline constexpr ValueKinds object = 32;
inline constexpr ValueKinds array = 64;
inline constexpr ValueKinds number = integer | fraction;
inline constexpr ValueKinds all = 127;
} // namespace value_kind

[[nodiscard]] ValueKinds kindOf(const jv::JV& value);

/// The number of a schema in a SchemaGraph.
using SchemaId = std::uint32_t;
inline constexpr SchemaId noSchema = UINT32_MAX;

struct NamedSchema {
    std::string_view name;
    SchemaId schema;
};

struct Limit {
    number::Number value;
    bool isExclusive;
};

/// What a schema says of values, or what the opposite of one says.
struct SchemaNode {
    const jv::JV* source = nullptr; ///< in the bundle; of the opposite, the schema itself
    bool isFalse = false;
    ValueKinds kinds = value_kind::all;
    ValueKinds hints = 0; ///< kinds that keywords speak of

    bool hasEnumeration = false;
    std::vector<const jv::JV*> enumeration;
    std::vector<const jv::JV*> excluded; ///< values that are not allowed

    std::vector<Limit> lower;
    std::vector<Limit> upper;
    std::vector<number::Number> divisors;
    std::vector<number::Number> nonDivisors;

    std::uint64_t minLength = 0;
    std::uint64_t maxLength = UINT64_MAX;
    std::string_view pattern;
    std::string_view otherThanPattern;
    bool hasPattern = false;
    bool hasOtherThanPattern = false;
    std::string_view format;
    std::string_view otherThanFormat;
    std::string_view encoding;

    std::vector<SchemaId> prefixItems;
    SchemaId items = noSchema;
    SchemaId contains = noSchema;
    std::uint64_t minContains = 1;
    std::uint64_t maxContains = UINT64_MAX;
    std::uint64_t minItems = 0;
    std::uint64_t maxItems = UINT64_MAX;
    bool uniqueItems = false;
    bool duplicateItems = false; ///< two items must be equal
    SchemaId unevaluatedItems = noSchema;

    std::vector<NamedSchema> properties; ///< in byte-wise order of their names
    std::vector<NamedSchema> patternProperties;
    SchemaId additionalProperties = noSchema;
    SchemaId propertyNames = noSchema;
    SchemaId foreignName = noSchema; ///< the name of at least one property fits it
    std::vector<std::string_view> required;
    std::uint64_t minProperties = 0;
    std::uint64_t maxProperties = UINT64_MAX;
    SchemaId unevaluatedProperties = noSchema;

    SchemaId reference = noSchema;
    std::vector<SchemaId> allOf;
    std::vector<std::vector<SchemaId>> anyOf; ///< one of each must fit
    std::vector<SchemaId> oneOf;
    /// Of the alternatives of `anyOf` the first that can be is taken, rather than any.
    bool prefersFirst = false;

    const jv::JV* discriminator = nullptr;
};

/// The schemas of a JSON Schema, read when they are first asked for, and their opposites: a schema that says
/// of a value that another does not fit it, as a choice of what to break. Nothing here recurses.
class SchemaGraph {
  public:
    /// `schema` outlives the graph.
    explicit SchemaGraph(const JSONSchema& schema) : schema_(&schema) {}

    /// The number of a schema of the bundle. One that is nothing but a reference is what it refers to.
    [[nodiscard]] SchemaId idOf(const jv::JV& schema);
    [[nodiscard]] const SchemaNode& node(SchemaId id);
    /// The number of a schema of the bundle; noSchema when nothing asked for it.
    [[nodiscard]] SchemaId find(const jv::JV& schema) const;
    [[nodiscard]] SchemaId opposite(SchemaId id);
    /// The schema that this one is the opposite of; noSchema when it is none.
    [[nodiscard]] SchemaId opposed(SchemaId id) const { return entries_[id].opposed; }
    /// Whether no value fits a schema, as far as its first `levels` tell.
    [[nodiscard]] bool isNever(SchemaId id);
    /// The schema of the values of some kinds.
    [[nodiscard]] SchemaId ofKinds(ValueKinds kinds);
    /// The schema of values that fit one of some schemas at least; each choice is one schema.
    [[nodiscard]] SchemaId anyOf(std::vector<SchemaId> ways);
    /// Compiled once. Throws regex::SyntaxError.
    [[nodiscard]] const regex::Pattern& pattern(std::string_view source);
    /// Whether a pattern matches a text; not when that takes too many steps.
    [[nodiscard]] bool matches(std::string_view pattern, std::string_view text);
    [[nodiscard]] const JSONSchema& schema() const noexcept { return *schema_; }

    /// From now on, of two alternatives of the `oneOf` of a schema, one is kept from fitting where the other
    /// is chosen, rather than hoped not to. False when that was so before.
    bool tellApart(SchemaId id, std::size_t first, std::size_t second);
    /// The same for all alternatives of all schemas that were read.
    bool tellAllApart();
    [[nodiscard]] bool areToldApart(SchemaId id, std::size_t first, std::size_t second) const {
        return entries_[id].isToldApart || entries_[id].toldApart.contains(std::minmax(first, second));
    }

  private:
    struct Entry {
        const jv::JV* source = nullptr;
        SchemaId opposed = noSchema;
        SchemaId opposite = noSchema;
        bool isReady = false;
        bool isToldApart = false;
        std::set<std::pair<std::size_t, std::size_t>> toldApart; ///< the smaller one first
        std::optional<bool> isNever;
        SchemaNode node;
    };

    [[nodiscard]] SchemaId add(SchemaNode node);
    [[nodiscard]] SchemaId never();
    [[nodiscard]] SchemaId always();
    [[nodiscard]] std::string_view keep(std::string text);

    [[nodiscard]] bool isNever(SchemaId id, int levels);
    void read(SchemaNode& node, const jv::JV& schema);
    void readScalars(SchemaNode& node, const jv::JV& schema);
    void readArrays(SchemaNode& node, const jv::JV& schema);
    void readObjects(SchemaNode& node, const jv::JV& schema);
    void readCompositions(SchemaNode& node, const jv::JV& schema);
    void readDependencies(SchemaNode& node, const jv::JV& schema);
    [[nodiscard]] SchemaId memberOf(const jv::JV& schema, std::string_view keyword);
    [[nodiscard]] SchemaId withoutProperty(std::string_view name, const SchemaNode& owner);
    [[nodiscard]] SchemaId withProperty(std::string_view name, SchemaId schema, const SchemaNode& owner);
    [[nodiscard]] SchemaId alternative(const SchemaNode& owner, ValueKinds kinds, SchemaNode node);

    void oppose(SchemaNode& node, SchemaId of);
    void opposeScalars(std::vector<SchemaId>& ways, const SchemaNode& schema);
    void opposeArrays(std::vector<SchemaId>& ways, const SchemaNode& schema);
    void opposeObjects(std::vector<SchemaId>& ways, const SchemaNode& schema);
    [[nodiscard]] std::string_view nameUnknownTo(const SchemaNode& schema);
    void opposeUnevaluated(std::vector<SchemaId>& ways, const SchemaNode& schema);
    void opposeCompositions(std::vector<SchemaId>& ways, const SchemaNode& schema);

    const JSONSchema* schema_;
    std::deque<Entry> entries_; ///< stay where they are
    std::unordered_map<const jv::JV*, SchemaId> ids_;
    std::unordered_map<ValueKinds, SchemaId> kinds_;
    std::map<std::vector<SchemaId>, SchemaId> choices_;
    std::unordered_map<std::string_view, std::unique_ptr<regex::Pattern>> patterns_;
    std::deque<std::string> names_;
    SchemaId never_ = noSchema;
};

} // namespace specloom::jv_generator
