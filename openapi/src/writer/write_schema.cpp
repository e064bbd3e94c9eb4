#include "foundation/unreachable.h"
#include "openapi/openapi.h"
#include "openapi/writer/node_writers.h"

namespace specloom::openapi {

namespace {

// ---- kinds of rows ---------------------------------------------------------------------------------------

void text(ObjectWriter& out, std::string_view name, const Schema& schema, SchemaKeyword keyword) {
    out.text(name, schema.text(keyword));
}

void flag(ObjectWriter& out, std::string_view name, const Schema& schema, SchemaKeyword keyword) {
    out.flag(name, schema.boolean(keyword));
}

void number(ObjectWriter& out, std::string_view name, const Schema& schema, SchemaKeyword keyword) {
    out.number(name, schema.number(keyword));
}

void count(ObjectWriter& out, std::string_view name, const Schema& schema, SchemaKeyword keyword) {
    out.count(name, schema.count(keyword));
}

void child(ObjectWriter& out, std::string_view name, const Schema& schema, SchemaKeyword keyword) {
    out.node(name, schema.node(keyword));
}

void list(ObjectWriter& out, std::string_view name, const Schema& schema, SchemaKeyword keyword) {
    out.list(name, schema.list(keyword));
}

void map(ObjectWriter& out, std::string_view name, const Schema& schema, SchemaKeyword keyword) {
    out.map(name, schema.map(keyword));
}

void exclusiveLimit(ObjectWriter& out, std::string_view name, const Schema& schema, SchemaKeyword keyword) {
    const ExclusiveLimit limit = schema.exclusiveLimit(keyword);
    switch (limit.index()) {
    case 0:
        return;
    case 1:
        return out.flag(name, std::get<bool>(limit));
    case 2:
        return out.number(name, std::get<number::Number>(limit));
    default:
        SPECLOOM_UNREACHABLE("Unknown index");
    }
}

// ---- single rows -----------------------------------------------------------------------------------------

void types(ObjectWriter& out, std::string_view name, const Schema& schema, SchemaKeyword) {
    const SchemaTypes& types = schema.types();
    if (types.size() == 1)
        return out.text(name, schemaTypeName(types.single()));
    std::vector<SchemaType> names;
    for (std::size_t index = 0; index < schemaTypeCount; ++index) {
        if (const auto type = static_cast<SchemaType>(index); types.has(type))
            names.push_back(type);
    }
    out.array(name, names, [](SchemaType type) { return std::make_unique<jv::JV>(schemaTypeName(type)); });
}

void format(ObjectWriter& out, std::string_view name, const Schema& schema, SchemaKeyword) {
    out.text(name, schema.format()->name);
}

void defaultValue(ObjectWriter& out, std::string_view name, const Schema& schema, SchemaKeyword) {
    out.value(name, schema.defaultValue());
}

void enumeration(ObjectWriter& out, std::string_view name, const Schema& schema, SchemaKeyword) {
    const std::vector<Value>& values = schema.enumeration();
    // OpenAPI 3.0 has no `const`.
    if (out.context().constFromEnum && !out.context().isVersion30 && values.size() == 1)
        return out.value("const", values.front().get());
    out.list(name, values);
}

/// OpenAPI 3.1 takes its keywords from JSON Schema 2020-12, which has renamed this one.
void definitions(ObjectWriter& out, std::string_view name, const Schema& schema, SchemaKeyword) {
    out.fill(
        out.context().isVersion31 ? "$defs" : name, schema.definitions(),
        [&](const auto& entry) { return writeNode(out.context(), *entry.value); }, name);
}

void examples(ObjectWriter& out, std::string_view name, const Schema& schema, SchemaKeyword) {
    const auto [entries, isArray] = schema.examples();
    const auto copy = [&](const NamedValue& entry) { return out.copyOf(*entry.value); };
    if (isArray)
        out.array(name, *entries, copy);
    else
        out.fill(name, *entries, copy);
}

/// The names are a set; a key order is as good for them as for the keys of an object.
void required(ObjectWriter& out, std::string_view name, const Schema& schema, SchemaKeyword) {
    std::vector<std::string_view> names;
    names.reserve(schema.required().size());
    for (const Text& property : schema.required())
        names.push_back(property.view());
    out.array(name, inKeyOrder(names, out.keyOrderOf(name)),
              [](std::string_view property) { return std::make_unique<jv::JV>(property); });
}

void dependentRequired(ObjectWriter& out, std::string_view name, const Schema& schema, SchemaKeyword) {
    out.fill(name, schema.dependentRequired(), [](const auto& entry) {
        std::unique_ptr<jv::JV> names = jv::JV::newArray();
        for (const Text& required : entry.value)
            names->appendString(required.view());
        return names;
    });
}

/// OpenAPI 3.0 knows a boolean in this place.
void additionalProperties(ObjectWriter& out, std::string_view name, const Schema& schema,
                          SchemaKeyword keyword) {
    const Node* node = schema.node(keyword);
    if (out.context().booleanSchemas && node != nullptr && node->type() == NodeType::Schema) {
        if (auto boolean = booleanFor(static_cast<const Schema&>(*node)); boolean != nullptr)
            return out.add(name, std::move(boolean));
    }
    out.node(name, node);
}

// ---- the table -------------------------------------------------------------------------------------------

enum class Family : std::uint8_t { Both, Only31 };

struct SchemaMember {
    std::string_view name;
    void (*write)(ObjectWriter& out, std::string_view name, const Schema& schema, SchemaKeyword keyword);
    std::optional<SchemaKeyword> keyword; ///< types are none
    Family family;
};

using enum SchemaKeyword;
using enum Family;

constexpr SchemaMember schemaMembers[] = {
    {"$id", text, Id, Only31},
    {"$schema", text, Dialect, Both},
    {"title", text, Title, Both},
    {"description", text, Description, Both},
    {"$comment", text, Comment, Only31},
    {"$anchor", text, Anchor, Only31},
    {"$dynamicAnchor", text, DynamicAnchor, Only31},
    {"$dynamicRef", text, DynamicRef, Only31},
    {"$vocabulary", text, Vocabulary, Only31},
    {"default", defaultValue, Default, Only31},
    {"type", types, std::nullopt, Both},
    {"format", format, Format, Both},
    {"enum", enumeration, Enum, Both},
    {"deprecated", flag, Deprecated, Only31},
    {"readOnly", flag, ReadOnly, Only31},
    {"writeOnly", flag, WriteOnly, Only31},
    {"definitions", definitions, Definitions, Only31},
    {"examples", examples, Examples, Only31},
    {"multipleOf", number, MultipleOf, Both},
    {"maximum", number, Maximum, Both},
    {"exclusiveMaximum", exclusiveLimit, ExclusiveMaximum, Both},
    {"minimum", number, Minimum, Both},
    {"exclusiveMinimum", exclusiveLimit, ExclusiveMinimum, Both},
    {"maxLength", count, MaxLength, Both},
    {"minLength", count, MinLength, Both},
    {"pattern", text, Pattern, Both},
    {"contentEncoding", text, ContentEncoding, Only31},
    {"contentMediaType", text, ContentMediaType, Only31},
    {"contentSchema", child, ContentSchema, Only31},
    {"maxItems", count, MaxItems, Both},
    {"minItems", count, MinItems, Both},
    {"uniqueItems", flag, UniqueItems, Both},
    {"prefixItems", list, PrefixItems, Both},
    {"items", child, Items, Both},
    {"additionalItems", child, AdditionalItems, Only31},
    {"contains", child, Contains, Only31},
    {"maxContains", count, MaxContains, Only31},
    {"minContains", count, MinContains, Only31},
    {"unevaluatedItems", child, UnevaluatedItems, Only31},
    {"maxProperties", count, MaxProperties, Both},
    {"minProperties", count, MinProperties, Both},
    {"required", required, Required, Both},
    {"properties", map, Properties, Both},
    {"patternProperties", map, PatternProperties, Both},
    {"additionalProperties", additionalProperties, AdditionalProperties, Both},
    {"propertyNames", child, PropertyNames, Both},
    {"dependentRequired", dependentRequired, DependentRequired, Only31},
    {"dependentSchemas", map, DependentSchemas, Only31},
    {"unevaluatedProperties", child, UnevaluatedProperties, Only31},
    {"allOf", list, AllOf, Both},
    {"oneOf", list, OneOf, Both},
    {"anyOf", list, AnyOf, Both},
    {"not", child, Not, Both},
    {"if", child, If, Only31},
    {"then", child, Then, Only31},
    {"else", child, Else, Only31},
    {"discriminator", child, SchemaKeyword::Discriminator, Both},
    {"xml", child, SchemaKeyword::XML, Both},
    {"externalDocs", child, ExternalDocs, Both},
};

} // namespace

void writeMembers(ObjectWriter& out, const Schema& schema) {
    for (const SchemaMember& member : schemaMembers) {
        if (member.family == Only31 && out.context().isVersion30)
            continue; // the keyword is kept in the tree, but OpenAPI 3.0 has no place for it
        if (!member.keyword)
            member.write(out, member.name, schema, {});
        else if (schema.has(*member.keyword))
            member.write(out, member.name, schema, *member.keyword);
    }
}

void writeMembers(ObjectWriter& out, const openapi::Discriminator& discriminator) {
    out.text("propertyName", discriminator.propertyName());
    out.map("mapping", discriminator.mapping());
}

void writeMembers(ObjectWriter& out, const openapi::XML& xml) {
    out.text("name", xml.name());
    out.text("namespace", xml.namespaceUri());
    out.text("prefix", xml.prefix());
    out.flag("attribute", xml.attribute());
    out.flag("wrapped", xml.wrapped());
}

std::unique_ptr<jv::JV> booleanFor(const Schema& schema) {
    if (schema.isAlwaysTrue())
        return std::make_unique<jv::JV>(true);
    return schema.isAlwaysFalse() ? std::make_unique<jv::JV>(false) : nullptr;
}

} // namespace specloom::openapi
