// The opposites of schemas: each is a choice of what to break. Where not every way to break a schema can be
// told, the last choice is to break nothing: the value is held against the schema in the end.

#include "egret/strings.h"
#include "jv_generator/schema_graph.h"

#include <algorithm> // std::ranges::any_of
#include <cstddef>   // std::size_t
#include <iterator>  // std::back_inserter
#include <utility>   // std::move

namespace specloom::jv_generator {

namespace {

constexpr std::size_t pairedAlternatives = 8; ///< alternatives of a `oneOf`

/// Whether a schema can be broken by properties or items that its opposite does not name.
[[nodiscard]] bool hasUntoldWays(const SchemaNode& schema) {
    return !schema.patternProperties.empty() || schema.additionalProperties != noSchema ||
           schema.unevaluatedProperties != noSchema || schema.unevaluatedItems != noSchema ||
           schema.items != noSchema || schema.oneOf.size() > pairedAlternatives;
}

} // namespace

SchemaId SchemaGraph::alternative(const SchemaNode& owner, ValueKinds kinds, SchemaNode node) {
    node.source = owner.source;
    node.kinds = kinds;
    return add(std::move(node));
}

void SchemaGraph::oppose(SchemaNode& node, SchemaId of) {
    const SchemaNode& schema = this->node(of);
    node.source = schema.source;
    node.prefersFirst = true;
    if (schema.isFalse)
        return;
    std::vector<SchemaId> ways;
    // The kinds that the keywords speak of say which values are broken: those of other kinds fit.
    if (schema.kinds != value_kind::all)
        ways.push_back(ofKinds(static_cast<ValueKinds>(value_kind::all & ~schema.kinds)));
    opposeObjects(ways, schema);
    opposeScalars(ways, schema);
    opposeArrays(ways, schema);
    opposeCompositions(ways, schema);
    opposeUnevaluated(ways, schema);
    if (hasUntoldWays(schema))
        ways.push_back(always());
    if (ways.empty())
        node.isFalse = true;
    else
        node.anyOf.push_back(std::move(ways));
}

void SchemaGraph::opposeScalars(std::vector<SchemaId>& ways, const SchemaNode& schema) {
    if (schema.hasEnumeration) {
        SchemaNode node;
        node.excluded = schema.enumeration;
        ways.push_back(alternative(schema, value_kind::all, std::move(node)));
    }
    for (const Limit& limit : schema.lower) {
        SchemaNode node;
        node.upper.push_back({limit.value, !limit.isExclusive});
        ways.push_back(alternative(schema, value_kind::number, std::move(node)));
    }
    for (const Limit& limit : schema.upper) {
        SchemaNode node;
        node.lower.push_back({limit.value, !limit.isExclusive});
        ways.push_back(alternative(schema, value_kind::number, std::move(node)));
    }
    if (!schema.divisors.empty()) {
        SchemaNode node;
        node.nonDivisors = {schema.divisors.front()};
        ways.push_back(alternative(schema, value_kind::number, std::move(node)));
    }
    if (!schema.nonDivisors.empty()) {
        SchemaNode node;
        node.divisors = {schema.nonDivisors.front()};
        ways.push_back(alternative(schema, value_kind::number, std::move(node)));
    }
    if (schema.minLength > 0) {
        SchemaNode node;
        node.maxLength = schema.minLength - 1;
        ways.push_back(alternative(schema, value_kind::string, std::move(node)));
    }
    if (schema.maxLength != UINT64_MAX) {
        SchemaNode node;
        node.minLength = schema.maxLength + 1;
        ways.push_back(alternative(schema, value_kind::string, std::move(node)));
    }
    if (schema.hasPattern) {
        SchemaNode node;
        node.otherThanPattern = schema.pattern;
        node.hasOtherThanPattern = true;
        ways.push_back(alternative(schema, value_kind::string, std::move(node)));
    }
    if (!schema.format.empty()) {
        SchemaNode node;
        node.otherThanFormat = schema.format;
        ways.push_back(alternative(schema, value_kind::string, std::move(node)));
    }
    if (schema.hasOtherThanPattern) {
        SchemaNode node;
        node.pattern = schema.otherThanPattern;
        node.hasPattern = true;
        ways.push_back(alternative(schema, value_kind::string, std::move(node)));
    }
    if (!schema.otherThanFormat.empty()) {
        SchemaNode node;
        node.format = schema.otherThanFormat;
        ways.push_back(alternative(schema, value_kind::string, std::move(node)));
    }
    if (!schema.excluded.empty()) {
        SchemaNode node;
        node.hasEnumeration = true;
        node.enumeration = schema.excluded;
        ways.push_back(alternative(schema, value_kind::all, std::move(node)));
    }
}

void SchemaGraph::opposeArrays(std::vector<SchemaId>& ways, const SchemaNode& schema) {
    const auto broken = [&](SchemaNode node) {
        ways.push_back(alternative(schema, value_kind::array, std::move(node)));
    };
    if (schema.minItems > 0) {
        SchemaNode node;
        node.maxItems = schema.minItems - 1;
        broken(std::move(node));
    }
    if (schema.maxItems != UINT64_MAX) {
        SchemaNode node;
        node.minItems = schema.maxItems + 1;
        broken(std::move(node));
    }
    if (schema.uniqueItems) {
        SchemaNode node;
        node.minItems = 2;
        node.duplicateItems = true;
        broken(std::move(node));
    }
    if (schema.duplicateItems) {
        SchemaNode node;
        node.uniqueItems = true;
        broken(std::move(node));
    }
    std::vector<SchemaId> before;
    const auto breakItem = [&](SchemaId item) {
        SchemaNode node;
        node.prefixItems = before;
        node.prefixItems.push_back(opposite(item));
        node.minItems = node.prefixItems.size();
        broken(std::move(node));
    };
    for (const SchemaId item : schema.prefixItems) {
        breakItem(item);
        before.push_back(always());
    }
    if (schema.items != noSchema)
        breakItem(schema.items);
    if (schema.contains == noSchema)
        return;
    if (schema.minContains > 0) {
        SchemaNode node;
        if (schema.minContains == 1) {
            node.items = opposite(schema.contains);
        } else {
            node.contains = schema.contains;
            node.minContains = 0;
            node.maxContains = schema.minContains - 1;
        }
        broken(std::move(node));
    }
    if (schema.maxContains != UINT64_MAX) {
        SchemaNode node;
        node.contains = schema.contains;
        node.minContains = schema.maxContains + 1;
        broken(std::move(node));
    }
}

void SchemaGraph::opposeObjects(std::vector<SchemaId>& ways, const SchemaNode& schema) {
    const auto breakProperty = [&](std::string_view name, SchemaId property) {
        const SchemaId broken = opposite(property);
        ways.push_back(withProperty(name, broken, schema));
    };
    for (const std::string_view name : schema.required) {
        SchemaNode node;
        node.properties.push_back({name, never()});
        ways.push_back(alternative(schema, value_kind::object, std::move(node)));
    }
    for (const NamedSchema& property : schema.properties)
        breakProperty(property.name, property.schema);
    if (schema.minProperties > 0) {
        SchemaNode node;
        node.maxProperties = schema.minProperties - 1;
        ways.push_back(alternative(schema, value_kind::object, std::move(node)));
    }
    if (schema.maxProperties != UINT64_MAX) {
        SchemaNode node;
        node.minProperties = schema.maxProperties + 1;
        ways.push_back(alternative(schema, value_kind::object, std::move(node)));
    }
    for (const NamedSchema& property : schema.patternProperties) {
        const egret::Strings names(property.name);
        for (std::string& name : names.covering({1, 32}))
            breakProperty(keep(std::move(name)), property.schema);
    }
    if (const std::string_view name = nameUnknownTo(schema);
        schema.additionalProperties != noSchema && !name.empty())
        breakProperty(name, schema.additionalProperties);
    if (schema.propertyNames != noSchema) {
        SchemaNode node;
        node.foreignName = opposite(schema.propertyNames);
        ways.push_back(alternative(schema, value_kind::object, std::move(node)));
    }
    if (schema.foreignName != noSchema) {
        SchemaNode node;
        node.propertyNames = opposite(schema.foreignName);
        ways.push_back(alternative(schema, value_kind::object, std::move(node)));
    }
}

/// A name that none of the properties has; empty where those that are tried are all taken.
std::string_view SchemaGraph::nameUnknownTo(const SchemaNode& schema) {
    const auto isTaken = [&](std::string_view name) {
        return std::ranges::any_of(schema.properties,
                                   [&](const NamedSchema& other) { return other.name == name; }) ||
               std::ranges::any_of(schema.patternProperties,
                                   [&](const NamedSchema& other) { return matches(other.name, name); });
    };
    for (const std::string_view candidate : {"additional", "other", "x", "ADDITIONAL", "1"}) {
        if (!isTaken(candidate))
            return candidate;
    }
    return {};
}

/// What the keywords beside it evaluate is known for those of the schema itself only.
void SchemaGraph::opposeUnevaluated(std::vector<SchemaId>& ways, const SchemaNode& schema) {
    if (schema.unevaluatedProperties != noSchema && schema.additionalProperties == noSchema) {
        if (const std::string_view name = nameUnknownTo(schema); !name.empty())
            ways.push_back(withProperty(name, opposite(schema.unevaluatedProperties), schema));
    }
    if (schema.unevaluatedItems != noSchema && schema.items == noSchema) {
        SchemaNode item;
        item.allOf = {opposite(schema.unevaluatedItems)};
        if (schema.contains != noSchema)
            item.allOf.push_back(opposite(schema.contains));
        SchemaNode node;
        node.prefixItems.assign(schema.prefixItems.size(), always());
        node.prefixItems.push_back(alternative(schema, value_kind::all, std::move(item)));
        node.minItems = node.prefixItems.size();
        ways.push_back(alternative(schema, value_kind::array, std::move(node)));
    }
}

void SchemaGraph::opposeCompositions(std::vector<SchemaId>& ways, const SchemaNode& schema) {
    const auto allOf = [&](std::vector<SchemaId> schemas) {
        SchemaNode node;
        node.allOf = std::move(schemas);
        ways.push_back(alternative(schema, value_kind::all, std::move(node)));
    };
    const auto noneOf = [&](const std::vector<SchemaId>& schemas) {
        std::vector<SchemaId> opposites;
        std::ranges::transform(schemas, std::back_inserter(opposites),
                               [this](SchemaId id) { return opposite(id); });
        allOf(std::move(opposites));
    };
    if (schema.reference != noSchema)
        ways.push_back(opposite(schema.reference));
    for (const SchemaId part : schema.allOf)
        ways.push_back(opposite(part));
    for (const std::vector<SchemaId>& alternatives : schema.anyOf)
        noneOf(alternatives);
    if (schema.oneOf.empty())
        return;
    noneOf(schema.oneOf);
    const bool isLong = schema.oneOf.size() > pairedAlternatives; // of many, neighbours only
    for (std::size_t i = 1; i < schema.oneOf.size(); ++i) {
        for (std::size_t j = isLong ? i - 1 : 0; j < i; ++j)
            allOf({schema.oneOf[j], schema.oneOf[i]});
    }
}

} // namespace specloom::jv_generator
