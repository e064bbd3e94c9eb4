#include "openapi_generator_doc_html/document/type_text.h"

#include "number/exact_numbers.h"
#include "openapi/schema.h"

#include <algorithm>        // std::ranges::any_of, std::ranges::find
#include <array>            // std::array
#include <cstddef>          // std::size_t
#include <initializer_list> // std::initializer_list
#include <optional>         // std::optional
#include <string_view>      // std::string_view
#include <unordered_map>    // std::unordered_map
#include <utility>          // std::move
#include <vector>           // std::vector, std::erase, std::erase_if

namespace specloom::openapi_generator::doc_html {

namespace {

using openapi::Schema;
using openapi::SchemaKeyword;
using openapi::SchemaType;

// What is beyond these says nothing. Real texts stay far below.
constexpr std::size_t deepestTypeText = 32;     ///< schemas within one another
constexpr std::size_t mostSchemasOfType = 2000; ///< in all
constexpr std::size_t mostTypesAllowed = 100;
constexpr std::size_t longestItemsText = 300; ///< in bytes

struct TypeWord {
    SchemaType type;
    std::string_view singular;
    std::string_view plural;
};

/// In the order in which they are told.
constexpr std::array<TypeWord, openapi::schemaTypeCount> typeWords = {{
    {SchemaType::Boolean, "boolean", "booleans"},
    {SchemaType::Integer, "integer", "integers"},
    {SchemaType::Number, "number", "numbers"},
    {SchemaType::String, "string", "strings"},
    {SchemaType::Array, "array", "arrays"},
    {SchemaType::Object, "object", "objects"},
    {SchemaType::Null, "null", "nulls"},
}};

/// One of the types that a schema allows.
struct AllowedType {
    SchemaType type;
    std::string format;               ///< of a text or number; empty without one
    std::optional<std::string> items; ///< of an array: the plural text, where it says something of them

    friend bool operator==(const AllowedType&, const AllowedType&) = default;
};

/// Nothing where a schema says nothing of types; an empty list where it allows none.
using AllowedTypes = std::optional<std::vector<AllowedType>>;

[[nodiscard]] bool isNumeric(SchemaType type) {
    return type == SchemaType::Integer || type == SchemaType::Number;
}

/// The type of values that are of both; nothing when there is none.
[[nodiscard]] std::optional<SchemaType> commonType(SchemaType first, SchemaType second) {
    if (first == second)
        return first;
    return isNumeric(first) && isNumeric(second) ? std::optional(SchemaType::Integer) : std::nullopt;
}

void addOnce(std::vector<AllowedType>& types, AllowedType type) {
    if (types.size() < mostTypesAllowed && std::ranges::find(types, type) == types.end())
        types.push_back(std::move(type));
}

[[nodiscard]] AllowedTypes both(AllowedTypes first, AllowedTypes second) {
    if (!first)
        return second;
    if (!second)
        return first;
    std::vector<AllowedType> common;
    for (const AllowedType& left : *first) {
        for (const AllowedType& right : *second) {
            if (const std::optional<SchemaType> type = commonType(left.type, right.type))
                addOnce(common, {*type, left.format.empty() ? right.format : left.format,
                                 left.items ? left.items : right.items});
        }
    }
    return common;
}

[[nodiscard]] bool isOfType(const jv::JV& value, SchemaType type) {
    switch (type) {
    case SchemaType::Null:
        return value.isNull();
    case SchemaType::Boolean:
        return value.isBoolean();
    case SchemaType::Object:
        return value.isObject();
    case SchemaType::Array:
        return value.isArray();
    case SchemaType::String:
        return value.isString();
    case SchemaType::Number:
        return value.isNumber();
    case SchemaType::Integer:
        return value.isNumber() && number::isIntegral(value.number());
    }
    return false;
}

/// What the type of a schema without types is when it has one of some keywords: these say something of values
/// of that type alone.
struct TypeHint {
    SchemaType type;
    std::initializer_list<SchemaKeyword> keywords;
};

[[nodiscard]] std::optional<SchemaType> hintedType(const Schema& schema) {
    using enum SchemaKeyword;
    static const TypeHint hints[] = {
        {SchemaType::Object,
         {Properties, PatternProperties, AdditionalProperties, Required, MinProperties, MaxProperties}},
        {SchemaType::Array, {Items, PrefixItems, MinItems, MaxItems, UniqueItems, Contains}},
        {SchemaType::String, {Pattern, MinLength, MaxLength}},
        {SchemaType::Number, {Minimum, Maximum, ExclusiveMinimum, ExclusiveMaximum, MultipleOf}},
    };
    std::optional<SchemaType> hinted;
    for (const TypeHint& hint : hints) {
        if (!std::ranges::any_of(hint.keywords, [&](SchemaKeyword keyword) { return schema.has(keyword); }))
            continue;
        if (hinted)
            return std::nullopt; // it is about values of several types
        hinted = hint.type;
    }
    if (hinted || schema.format() == nullptr)
        return hinted;
    return schema.format()->type;
}

class TypeReader {
  public:
    [[nodiscard]] std::string text(const openapi::Node* node, bool isPlural) {
        const auto* schema = openapi::resolveTo<Schema>(node);
        AllowedTypes types = schema == nullptr ? std::nullopt : typesOf(*schema);
        if (!types)
            return "<any>";
        if (types->empty())
            return "<empty>";
        std::string result;
        for (const TypeWord& word : typeWords) {
            for (const AllowedType& type : *types) {
                if (type.type == word.type)
                    result.append(result.empty() ? "" : " or ").append(textOf(type, word, isPlural));
            }
        }
        return result;
    }

  private:
    [[nodiscard]] static std::string textOf(const AllowedType& type, const TypeWord& word, bool isPlural) {
        std::string text(isPlural ? word.plural : word.singular);
        if (!type.format.empty())
            text.append("(").append(type.format).append(")");
        if (type.items)
            text.append(" of ").append(*type.items);
        return text;
    }

    /// A schema that is being looked at says nothing within itself.
    [[nodiscard]] AllowedTypes typesOf(const Schema& schema) {
        const auto [known, isNew] = known_.try_emplace(&schema);
        if (!isNew)
            return known->second;
        if (open_.size() == deepestTypeText || known_.size() > mostSchemasOfType)
            return std::nullopt;
        open_.push_back(&schema);
        AllowedTypes types = schema.isAlwaysFalse() ? AllowedTypes(std::in_place) : findTypes(schema);
        open_.pop_back();
        return known_[&schema] = std::move(types);
    }

    [[nodiscard]] AllowedTypes findTypes(const Schema& schema) {
        AllowedTypes types = ownTypes(schema);
        for (const openapi::NodePointer& part : schema.allOf())
            types = both(std::move(types), typesOfNode(part));
        types = both(std::move(types), typesOfAny(schema.anyOf()));
        return both(std::move(types), typesOfAny(schema.oneOf()));
    }

    [[nodiscard]] AllowedTypes typesOfNode(const openapi::NodePointer& node) {
        const auto* schema = openapi::resolveTo<Schema>(node.get());
        return schema == nullptr ? std::nullopt : typesOf(*schema);
    }

    [[nodiscard]] AllowedTypes typesOfAny(const openapi::NodeList& alternatives) {
        if (alternatives.empty())
            return std::nullopt;
        std::vector<AllowedType> all;
        for (const openapi::NodePointer& alternative : alternatives) {
            const AllowedTypes types = typesOfNode(alternative);
            if (!types)
                return std::nullopt;
            for (const AllowedType& type : *types)
                addOnce(all, type);
        }
        return all;
    }

    [[nodiscard]] AllowedTypes ownTypes(const Schema& schema) {
        std::vector<SchemaType> types;
        const std::vector<openapi::Value>& values = schema.enumeration();
        const bool isEnumeration = schema.has(SchemaKeyword::Enum);
        const std::optional<SchemaType> hinted =
            schema.types().empty() && !isEnumeration ? hintedType(schema) : std::nullopt;
        if (schema.types().empty() && !isEnumeration && !hinted)
            return std::nullopt;
        for (const TypeWord& word : typeWords) {
            if (hinted ? word.type == *hinted : schema.types().empty() || schema.types().has(word.type))
                types.push_back(word.type);
        }
        if (isEnumeration) {
            std::erase_if(types, [&](SchemaType type) {
                return !std::ranges::any_of(
                    values, [&](const openapi::Value& value) { return isOfType(*value, type); });
            });
            dropNeedlessNumber(schema, types);
        }
        std::vector<AllowedType> allowed;
        allowed.reserve(types.size());
        for (const SchemaType type : types)
            allowed.push_back({type, formatFor(schema, type), itemsFor(schema, type)});
        return allowed;
    }

    /// Integers are numbers: where only values tell the types, those without a fraction are integers.
    static void dropNeedlessNumber(const Schema& schema, std::vector<SchemaType>& types) {
        if (!schema.types().empty() || std::ranges::find(types, SchemaType::Integer) == types.end())
            return;
        const bool hasFraction = std::ranges::any_of(schema.enumeration(), [](const openapi::Value& value) {
            return isOfType(*value, SchemaType::Number) && !isOfType(*value, SchemaType::Integer);
        });
        std::erase(types, hasFraction ? SchemaType::Integer : SchemaType::Number);
    }

    [[nodiscard]] static std::string formatFor(const Schema& schema, SchemaType type) {
        const openapi::SchemaFormat* format = schema.format();
        return format != nullptr && commonType(format->type, type) ? format->name : std::string();
    }

    [[nodiscard]] std::optional<std::string> itemsFor(const Schema& schema, SchemaType type) {
        const openapi::Node* items = schema.node(SchemaKeyword::Items);
        if (type != SchemaType::Array || items == nullptr)
            return std::nullopt;
        if (std::ranges::find(open_, openapi::resolveTo<Schema>(items)) != open_.end())
            return std::nullopt;
        std::string told = text(items, true);
        return told.size() > longestItemsText ? std::nullopt : std::optional(std::move(told));
    }

    std::unordered_map<const Schema*, AllowedTypes> known_;
    std::vector<const Schema*> open_; ///< those that are being looked at
};

} // namespace

std::string typeText(const openapi::Node* schema) {
    return TypeReader().text(schema, false);
}

} // namespace specloom::openapi_generator::doc_html
