#include "jv_generator/schema_graph.h"

#include "number/exact_numbers.h"

#include <algorithm> // std::ranges::all_of, std::ranges::any_of, std::ranges::find
#include <array>     // std::to_array
#include <utility>   // std::move

namespace specloom::jv_generator {

namespace {

using jv::JV;

struct KindName {
    std::string_view name;
    ValueKinds kinds;
};

constexpr auto kindNames = std::to_array<KindName>({
    {"array", value_kind::array},
    {"boolean", value_kind::boolean},
    {"integer", value_kind::integer},
    {"null", value_kind::null},
    {"number", value_kind::number},
    {"object", value_kind::object},
    {"string", value_kind::string},
});

[[nodiscard]] ValueKinds kindsNamed(const JV& name) {
    if (!name.isString())
        return 0;
    for (const KindName& row : kindNames) {
        if (row.name == name.text())
            return row.kinds;
    }
    return 0;
}

/// A keyword that is an integer of at least 0; one that no size can reach counts as the largest.
void readCount(const JV& schema, std::string_view keyword, std::uint64_t& count) {
    const JV* value = schema.get(keyword);
    if (value == nullptr || !value->isNumber())
        return;
    const number::Number number = value->number();
    if (number.compare(0) < 0)
        return;
    if (number.kind() == number::NumberKind::Unsigned || number.kind() == number::NumberKind::Signed)
        count = number.toULong();
    else if (number.kind() == number::NumberKind::Float && number.floatValue() < 0x1p63)
        count = static_cast<std::uint64_t>(number.floatValue());
    else
        count = UINT64_MAX;
}

void readText(const JV& schema, std::string_view keyword, std::string_view& text) {
    if (const JV* value = schema.get(keyword); value != nullptr && value->isString())
        text = value->text();
}

void readLimit(const JV& schema, std::string_view keyword, bool isExclusive, std::vector<Limit>& limits) {
    if (const JV* value = schema.get(keyword); value != nullptr && value->isNumber())
        limits.push_back({value->number(), isExclusive});
}

struct Hint {
    std::string_view keyword;
    ValueKinds kinds;
};

constexpr auto hintTable = std::to_array<Hint>({
    {"additionalProperties", value_kind::object},
    {"contains", value_kind::array},
    {"contentEncoding", value_kind::string},
    {"dependentRequired", value_kind::object},
    {"dependentSchemas", value_kind::object},
    {"exclusiveMaximum", value_kind::number},
    {"exclusiveMinimum", value_kind::number},
    {"format", value_kind::string},
    {"items", value_kind::array},
    {"maxItems", value_kind::array},
    {"maxLength", value_kind::string},
    {"maxProperties", value_kind::object},
    {"maximum", value_kind::number},
    {"minItems", value_kind::array},
    {"minLength", value_kind::string},
    {"minProperties", value_kind::object},
    {"minimum", value_kind::number},
    {"multipleOf", value_kind::number},
    {"pattern", value_kind::string},
    {"patternProperties", value_kind::object},
    {"prefixItems", value_kind::array},
    {"properties", value_kind::object},
    {"propertyNames", value_kind::object},
    {"required", value_kind::object},
    {"unevaluatedItems", value_kind::array},
    {"unevaluatedProperties", value_kind::object},
    {"uniqueItems", value_kind::array},
});

/// Formats of numbers are no hint at texts.
[[nodiscard]] bool isNumberFormat(std::string_view name) {
    return name == "int32" || name == "int64" || name == "float" || name == "double";
}

} // namespace

ValueKinds kindOf(const JV& value) {
    switch (value.kind()) {
    case jv::Kind::Null:
        return value_kind::null;
    case jv::Kind::Boolean:
        return value_kind::boolean;
    case jv::Kind::Number:
        return number::isIntegral(value.number()) ? value_kind::integer : value_kind::fraction;
    case jv::Kind::String:
        return value_kind::string;
    case jv::Kind::Array:
        return value_kind::array;
    case jv::Kind::Object:
        return value_kind::object;
    }
    return 0;
}

const SchemaNode& SchemaGraph::node(SchemaId id) {
    Entry& entry = entries_[id];
    if (!entry.isReady) {
        entry.isReady = true;
        if (entry.opposed != noSchema)
            oppose(entry.node, entry.opposed);
        else
            read(entry.node, *entry.source);
    }
    return entry.node;
}

SchemaId SchemaGraph::find(const JV& schema) const {
    const auto known = ids_.find(&schema);
    return known == ids_.end() ? noSchema : known->second;
}

SchemaId SchemaGraph::opposite(SchemaId id) {
    if (entries_[id].opposite == noSchema) {
        const auto opposite = static_cast<SchemaId>(entries_.size());
        entries_[id].opposite = opposite;
        Entry& entry = entries_.emplace_back();
        entry.opposed = id;
        entry.opposite = id;
    }
    return entries_[id].opposite;
}

SchemaId SchemaGraph::ofKinds(ValueKinds kinds) {
    const auto [known, isNew] = kinds_.emplace(kinds, noSchema);
    if (isNew) {
        SchemaNode node;
        node.kinds = kinds;
        known->second = add(std::move(node));
    }
    return known->second;
}

SchemaId SchemaGraph::anyOf(std::vector<SchemaId> ways) {
    if (ways.size() == 1)
        return ways.front();
    const auto [known, isNew] = choices_.try_emplace(std::move(ways), noSchema);
    if (isNew) {
        SchemaNode node;
        node.source = this->node(known->first.front()).source;
        node.anyOf.push_back(known->first);
        known->second = add(std::move(node));
    }
    return known->second;
}

const regex::Pattern& SchemaGraph::pattern(std::string_view source) {
    std::unique_ptr<regex::Pattern>& pattern = patterns_[source];
    if (pattern == nullptr)
        pattern = std::make_unique<regex::Pattern>(source);
    return *pattern;
}

bool SchemaGraph::matches(std::string_view source, std::string_view text) {
    return pattern(source).search(text) == regex::Pattern::Outcome::Match;
}

bool SchemaGraph::tellApart(SchemaId id, std::size_t first, std::size_t second) {
    return entries_[id].toldApart.insert(std::minmax(first, second)).second;
}

bool SchemaGraph::tellAllApart() {
    bool isNew = false;
    for (Entry& entry : entries_) {
        isNew |= !entry.isToldApart && !entry.node.oneOf.empty();
        entry.isToldApart = true;
    }
    return isNew;
}

SchemaId SchemaGraph::idOf(const JV& schema) {
    const JV* target = &schema;
    for (std::size_t steps = 0; target->isObject() && target->size() == 1 && steps < entries_.size() + 1;
         ++steps) {
        const JV* reference = target->get("$ref");
        if (reference == nullptr)
            break;
        target = &schema_->target(reference->text());
    }
    const auto [known, isNew] = ids_.emplace(target, static_cast<SchemaId>(entries_.size()));
    if (isNew)
        entries_.emplace_back().source = target;
    return known->second;
}

bool SchemaGraph::isNever(SchemaId id) {
    constexpr int levelsLookedAt = 6;
    if (!entries_[id].isNever)
        entries_[id].isNever = isNever(id, levelsLookedAt);
    return *entries_[id].isNever;
}

bool SchemaGraph::isNever(SchemaId id, int levels) {
    const SchemaNode& schema = node(id);
    if (schema.isFalse || schema.kinds == 0)
        return true;
    if (levels == 0)
        return false;
    const auto never = [&](SchemaId part) { return isNever(part, levels - 1); };
    const auto isDemanded = [&](const NamedSchema& property) {
        return std::ranges::find(schema.required, property.name) != schema.required.end() &&
               schema.kinds == value_kind::object && never(property.schema);
    };
    return std::ranges::any_of(schema.allOf, never) ||
           (schema.reference != noSchema && never(schema.reference)) ||
           std::ranges::any_of(schema.anyOf,
                               [&](const auto& ways) { return std::ranges::all_of(ways, never); }) ||
           std::ranges::any_of(schema.properties, isDemanded);
}

SchemaId SchemaGraph::add(SchemaNode node) {
    const auto id = static_cast<SchemaId>(entries_.size());
    Entry& entry = entries_.emplace_back();
    entry.isReady = true;
    entry.node = std::move(node);
    return id;
}

SchemaId SchemaGraph::never() {
    if (never_ == noSchema) {
        SchemaNode node;
        node.isFalse = true;
        never_ = add(std::move(node));
    }
    return never_;
}

SchemaId SchemaGraph::always() {
    return ofKinds(value_kind::all);
}

std::string_view SchemaGraph::keep(std::string text) {
    return names_.emplace_back(std::move(text));
}

// ---- reading

SchemaId SchemaGraph::memberOf(const JV& schema, std::string_view keyword) {
    const JV* member = schema.get(keyword);
    return member == nullptr ? noSchema : idOf(*member);
}

void SchemaGraph::read(SchemaNode& node, const JV& schema) {
    node.source = &schema;
    if (!schema.isObject()) {
        node.isFalse = schema.isBoolean() && !schema.boolean();
        return;
    }
    if (const JV* reference = schema.get("$ref"))
        node.reference = idOf(schema_->target(reference->text()));
    for (const Hint& hint : hintTable) {
        if (schema.get(hint.keyword) != nullptr)
            node.hints |= hint.kinds;
    }
    readScalars(node, schema);
    readArrays(node, schema);
    readObjects(node, schema);
    readCompositions(node, schema);
    readDependencies(node, schema);
}

void SchemaGraph::readScalars(SchemaNode& node, const JV& schema) {
    if (const JV* type = schema.get("type")) {
        node.kinds = 0;
        if (type->isArray()) {
            for (const JV* name : type->elements())
                node.kinds |= kindsNamed(*name);
        } else {
            node.kinds = kindsNamed(*type);
        }
    }
    if (const JV* values = schema.get("enum"); values != nullptr && values->isArray()) {
        node.hasEnumeration = true;
        for (const JV* value : values->elements())
            node.enumeration.push_back(value);
    }
    if (const JV* value = schema.get("const")) {
        node.hasEnumeration = true;
        std::erase_if(node.enumeration, [&](const JV* other) { return !other->equals(*value); });
        if (schema.get("enum") == nullptr)
            node.enumeration = {value};
    }
    readLimit(schema, "minimum", false, node.lower);
    readLimit(schema, "exclusiveMinimum", true, node.lower);
    readLimit(schema, "maximum", false, node.upper);
    readLimit(schema, "exclusiveMaximum", true, node.upper);
    if (const JV* divisor = schema.get("multipleOf"); divisor != nullptr && divisor->isNumber())
        node.divisors.push_back(divisor->number());
    readCount(schema, "minLength", node.minLength);
    readCount(schema, "maxLength", node.maxLength);
    readText(schema, "pattern", node.pattern);
    node.hasPattern = schema.get("pattern") != nullptr;
    readText(schema, "format", node.format);
    if (isNumberFormat(node.format) && schema.get("type") == nullptr)
        node.hints = static_cast<ValueKinds>((node.hints & ~value_kind::string) | value_kind::number);
    readText(schema, "contentEncoding", node.encoding);
}

void SchemaGraph::readArrays(SchemaNode& node, const JV& schema) {
    if (const JV* prefix = schema.get("prefixItems"); prefix != nullptr && prefix->isArray()) {
        for (const JV* item : prefix->elements())
            node.prefixItems.push_back(idOf(*item));
    }
    node.items = memberOf(schema, "items");
    node.contains = memberOf(schema, "contains");
    readCount(schema, "minContains", node.minContains);
    readCount(schema, "maxContains", node.maxContains);
    readCount(schema, "minItems", node.minItems);
    readCount(schema, "maxItems", node.maxItems);
    if (const JV* unique = schema.get("uniqueItems"))
        node.uniqueItems = unique->isBoolean() && unique->boolean();
    node.unevaluatedItems = memberOf(schema, "unevaluatedItems");
}

void SchemaGraph::readObjects(SchemaNode& node, const JV& schema) {
    if (const JV* properties = schema.get("properties")) {
        for (const jv::Member member : properties->members())
            node.properties.push_back({member.key, idOf(*member.value)});
    }
    if (const JV* patterns = schema.get("patternProperties")) {
        for (const jv::Member member : patterns->members())
            node.patternProperties.push_back({member.key, idOf(*member.value)});
    }
    node.additionalProperties = memberOf(schema, "additionalProperties");
    node.propertyNames = memberOf(schema, "propertyNames");
    if (const JV* required = schema.get("required")) {
        for (const JV* name : required->elements())
            node.required.push_back(name->text());
    }
    readCount(schema, "minProperties", node.minProperties);
    readCount(schema, "maxProperties", node.maxProperties);
    node.unevaluatedProperties = memberOf(schema, "unevaluatedProperties");
}

void SchemaGraph::readCompositions(SchemaNode& node, const JV& schema) {
    const auto idsOf = [&](std::string_view keyword) {
        std::vector<SchemaId> ids;
        if (const JV* schemas = schema.get(keyword)) {
            for (const JV* alternative : schemas->elements())
                ids.push_back(idOf(*alternative));
        }
        return ids;
    };
    node.allOf = idsOf("allOf");
    if (std::vector<SchemaId> ids = idsOf("anyOf"); !ids.empty())
        node.anyOf.push_back(std::move(ids));
    node.oneOf = idsOf("oneOf");
    if (const JV* negated = schema.get("not"))
        node.allOf.push_back(opposite(idOf(*negated)));
    const JV* discriminator = schema.get("discriminator");
    if (discriminator != nullptr && discriminator->isObject())
        node.discriminator = discriminator;
    const SchemaId condition = memberOf(schema, "if");
    if (condition == noSchema)
        return;
    const auto branch = [&](SchemaId first, std::string_view keyword) {
        SchemaNode both;
        both.source = &schema;
        both.allOf = {first};
        if (const SchemaId then = memberOf(schema, keyword); then != noSchema)
            both.allOf.push_back(then);
        return add(std::move(both));
    };
    node.anyOf.push_back({branch(condition, "then"), branch(opposite(condition), "else")});
}

/// What depends on a property holds, or the property is missing.
void SchemaGraph::readDependencies(SchemaNode& node, const JV& schema) {
    if (const JV* schemas = schema.get("dependentSchemas"); schemas != nullptr && schemas->isObject()) {
        for (const jv::Member member : schemas->members()) {
            SchemaNode with;
            with.source = &schema;
            with.required = {member.key};
            with.allOf = {idOf(*member.value)};
            node.anyOf.push_back({add(std::move(with)), withoutProperty(member.key, node),
                                  ofKinds(value_kind::all & ~value_kind::object)});
        }
    }
    if (const JV* names = schema.get("dependentRequired"); names != nullptr && names->isObject()) {
        for (const jv::Member member : names->members()) {
            if (!member.value->isArray())
                continue;
            SchemaNode with;
            with.source = &schema;
            with.required = {member.key};
            for (const JV* name : member.value->elements()) {
                if (name->isString())
                    with.required.push_back(name->text());
            }
            node.anyOf.push_back({add(std::move(with)), withoutProperty(member.key, node),
                                  ofKinds(value_kind::all & ~value_kind::object)});
        }
    }
}

SchemaId SchemaGraph::withoutProperty(std::string_view name, const SchemaNode& owner) {
    SchemaNode node;
    node.source = owner.source;
    node.properties.push_back({name, never()});
    return add(std::move(node));
}

SchemaId SchemaGraph::withProperty(std::string_view name, SchemaId schema, const SchemaNode& owner) {
    SchemaNode node;
    node.source = owner.source;
    node.kinds = value_kind::object;
    node.required.push_back(name);
    node.properties.push_back({name, schema});
    return add(std::move(node));
}

} // namespace specloom::jv_generator
