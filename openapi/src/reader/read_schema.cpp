#include "foundation/message.h"
#include "openapi/reader/readers.h"
#include "openapi/reference.h"

#include <algorithm> // std::find, std::ranges::count_if, std::ranges::sort
#include <array>     // std::array
#include <utility>   // std::index_sequence

#include <fmt/format.h> // fmt::format

namespace specloom::openapi {

// The keywords' own names, some of which are those of classes, are used in here only.
namespace schema_reading {
namespace {

using enum SchemaKeyword;

// ---- kinds of rows

/// A null counts as an absent text, as with readText().
template <SchemaKeyword keyword>
void text(ReaderContext&, Schema& schema, const Member& member) {
    if (!member.value.isNull())
        schema.setText(keyword, member.text());
}

template <SchemaKeyword keyword>
void boolean(ReaderContext&, Schema& schema, const Member& member) {
    schema.setBoolean(keyword, member.boolean());
}

template <SchemaKeyword keyword>
void number(ReaderContext&, Schema& schema, const Member& member) {
    schema.setNumber(keyword, member.number());
}

/// An integer of 0 to 2^64-1, which JSON may also write with a fraction of zeros.
[[nodiscard]] std::optional<std::uint64_t> countOf(const number::Number& value) {
    switch (value.kind()) {
    case number::NumberKind::Unsigned:
        return value.unsignedValue();
    case number::NumberKind::Signed:
        if (value.signedValue() >= 0)
            return static_cast<std::uint64_t>(value.signedValue());
        return std::nullopt;
    case number::NumberKind::Float:
        if (value.floatValue() >= 0 && value.floatValue() < 0x1p64)
            return static_cast<std::uint64_t>(value.floatValue());
        return std::nullopt;
    case number::NumberKind::Big:
        return std::nullopt;
    }
    return std::nullopt;
}

template <SchemaKeyword keyword>
void count(ReaderContext& context, Schema& schema, const Member& member) {
    (void)member.object.getInteger(member.name); // throws for other kinds
    if (const auto value = countOf(member.value.number()); value)
        schema.setCount(keyword, *value);
    else
        context.report(schema, &member.value, "Expected unsigned integer value");
}

/// A flag in 3.0, a limit of its own elsewhere.
template <SchemaKeyword keyword>
void exclusive(ReaderContext& context, Schema& schema, const Member& member) {
    if (context.isOpenAPI30) {
        if (member.value.isBoolean())
            schema.setBoolean(keyword, member.value.boolean());
        else
            context.report(schema, &member.value, "Expected boolean value");
    } else if (member.value.isNumber()) {
        schema.setNumber(keyword, member.value.number());
    } else {
        context.report(schema, &member.value, "Expected numeric value");
    }
}

template <SchemaKeyword keyword>
void subschema(ReaderContext& context, Schema& schema, const Member& member) {
    readSchemaPlace(
        context, member.value, [&] { return schema.createSchema(keyword); },
        [&](Node& target) { return schema.setReference(keyword, target); });
}

template <SchemaKeyword keyword>
void schemaList(ReaderContext& context, Schema& schema, const Member& member) {
    const jv::JV& elements = member.asArray();
    schema.reserveList(keyword, elements.size());
    for (const jv::JV* element : elements.elements()) {
        readSchemaPlace(
            context, *element, [&] { return schema.addSchema(keyword); },
            [&](Node& target) { return schema.addReference(keyword, target); });
    }
}

template <SchemaKeyword keyword>
void schemaMap(ReaderContext& context, Schema& schema, const Member& member) {
    const jv::JV& entries = member.asObject();
    schema.reserveMap(keyword, entries.size());
    for (const jv::Member& entry : entries.members()) {
        readSchemaPlace(
            context, *entry.value, [&] { return schema.addSchema(keyword, Text::borrow(entry.key)); },
            [&](Node& target) { return schema.addReference(keyword, Text::borrow(entry.key), target); });
    }
}

// ---- single rows

void dialect(ReaderContext& context, Schema& schema, const Member& member) {
    const Text uri = member.text();
    const auto& dialects = schemaDialects();
    if (std::find(dialects.begin(), dialects.end(), uri.view()) == dialects.end())
        context.report(schema, &member.value, formatMessage("Unknown schema dialect: {}", uri.view()));
    else
        schema.setDialect(uri.view());
}

void type(ReaderContext& context, Schema& schema, const Member& member) {
    schema.clearTypes();
    if (member.value.isString()) {
        schema.addType(member.value.text());
    } else if (member.value.isArray()) {
        for (const jv::JV* element : member.value.elements()) {
            if (element->isString())
                schema.addType(element->text());
            else
                context.report(schema, element, "Expected string value for schema type");
        }
    } else {
        context.report(schema, &member.value, "Expected string or array value for schema type");
    }
}

void constant(ReaderContext& context, Schema& schema, const Member& member) {
    if (context.isOpenAPI30) {
        context.report(schema, &member.value, "const keyword is only supported in OpenAPI 3.1");
        return;
    }
    std::vector<Value> values;
    values.push_back(Value::borrow(member.value));
    schema.setEnumeration(std::move(values));
}

void enumeration(ReaderContext& context, Schema& schema, const Member& member) {
    if (!context.isOpenAPI30 && member.object.has("const")) {
        context.report(schema, &member.value, "const and enum keywords are mutually exclusive");
        return;
    }
    if (!member.value.isArray())
        return;
    std::vector<Value> values;
    values.reserve(member.value.size());
    for (const jv::JV* element : member.value.elements())
        values.push_back(Value::borrow(*element));
    schema.setEnumeration(std::move(values));
}

void defaultValue(ReaderContext&, Schema& schema, const Member& member) {
    schema.setDefaultValue(Value::borrow(member.value));
}

/// Unlike other places, an entry here is read as a schema even when it has a `$ref`.
void definitions(ReaderContext& context, Schema& schema, const Member& member) {
    const jv::JV& entries = member.asObject();
    schema.reserveMap(Definitions, entries.size());
    for (const jv::Member& entry : entries.members())
        readSchema(context, *schema.addSchema(Definitions, Text::borrow(entry.key)), *entry.value);
}

void oldDefinitions(ReaderContext& context, Schema& schema, const Member& member) {
    if (member.object.has("$defs"))
        context.report(schema, &member.value, "definitions and $defs are mutually exclusive");
    else
        definitions(context, schema, member);
}

void nullable(ReaderContext& context, Schema& schema, const Member& member) {
    if (!context.isOpenAPI30 && !context.allowNullable)
        context.report(schema, &member.value, "Nullable is only supported in OpenAPI 3.0");
    else if (member.boolean())
        schema.addType(SchemaType::Null);
}

void format(ReaderContext& context, Schema& schema, const Member& member) {
    const Text name = member.text();
    if (const SchemaFormat* known = context.formats().find(name.view()); known != nullptr)
        schema.setFormat(known);
    else
        context.report(schema, &member.value, formatMessage("Unknown format: {}", name.view()));
}

void contentEncoding(ReaderContext&, Schema& schema, const Member& member) {
    schema.setContentEncoding(member.text());
}

void contentMediaType(ReaderContext&, Schema& schema, const Member& member) {
    schema.setContentMediaType(member.text());
}

/// Neither an element of another kind than text nor another kind than array is worth a refusal: many
/// documents have the flag of older drafts here, which says nothing in a schema.
void required(ReaderContext&, Schema& schema, const Member& member) {
    if (!member.value.isArray())
        return;
    std::vector<Text> names;
    for (const jv::JV* element : member.value.elements()) {
        if (element->isString())
            names.push_back(Text::borrow(element->text()));
    }
    schema.setRequired(std::move(names));
}

void dependentRequired(ReaderContext& context, Schema& schema, const Member& member) {
    for (const jv::Member& entry : member.asObject().members()) {
        if (entry.value->isArray())
            schema.setDependentRequired(Text::borrow(entry.key), readTexts(context, schema, *entry.value));
        else
            context.report(schema, entry.value, "Expected array value");
    }
}

/// OpenAPI 3.1 has an array here, as JSON Schema has; documents of both families also have a map by name.
void examples(ReaderContext&, Schema& schema, const Member& member) {
    if (member.value.isArray()) {
        std::vector<Value> values;
        for (const jv::JV* element : member.value.elements())
            values.push_back(Value::borrow(*element));
        schema.setExamples(std::move(values));
        return;
    }
    std::vector<NamedValue> values;
    for (const jv::Member& entry : member.asObject().members())
        values.push_back({Text::borrow(entry.key), Value::borrow(*entry.value)});
    schema.setExamples(std::move(values));
}

void readMapping(ReaderContext&, openapi::Discriminator& discriminator, const Member& member) {
    const jv::JV& mapping = member.asObject();
    for (const jv::Member& entry : mapping.members())
        discriminator.setMapping(Text::borrow(entry.key), Member{mapping, entry.key, *entry.value}.text());
}

constexpr ObjectReader<openapi::Discriminator, 1, NodeType::Discriminator> discriminatorReader({
    {"mapping", readMapping},
});

void discriminator(ReaderContext& context, Schema& schema, const Member& member) {
    const jv::JV& value = member.asObject();
    Text name = Text::borrow(value.getRequiredString("propertyName")->text());
    discriminatorReader.read(context, *schema.createDiscriminator(std::move(name)), value);
}

constexpr ObjectReader<openapi::XML, 5, NodeType::XML> xmlReader({
    {"name", readText<openapi::XML, &openapi::XML::setName>},
    {"namespace", readText<openapi::XML, &openapi::XML::setNamespaceUri>},
    {"prefix", readText<openapi::XML, &openapi::XML::setPrefix>},
    {"attribute", readBoolean<openapi::XML, &openapi::XML::setAttribute>},
    {"wrapped", readBoolean<openapi::XML, &openapi::XML::setWrapped>},
});

void xml(ReaderContext& context, Schema& schema, const Member& member) {
    xmlReader.read(context, *schema.createXML(), member.asObject());
}

// ---- the table

using SchemaRow = MemberReader<Schema>;

/// Members that are not read by what stands there alone.
constexpr SchemaRow ownRows[] = {
    {"$schema", dialect},
    {"type", type},
    {"const", constant},
    {"enum", enumeration},
    {"default", defaultValue},
    {"$defs", definitions},
    {"definitions", oldDefinitions},
    {"nullable", nullable},
    {"format", format},
    {"contentEncoding", contentEncoding},
    {"contentMediaType", contentMediaType},
    {"required", required},
    {"dependentRequired", dependentRequired},
    {"examples", examples},
    {"discriminator", discriminator},
    {"xml", xml},
    {"externalDocs", readExternalDocs<Schema>},
};

constexpr auto readMembers = [] {
    std::array<const MemberShape*, std::ranges::count_if(shape::schema, &MemberShape::isRead)> members{};
    std::size_t next = 0;
    for (const MemberShape& member : shape::schema)
        if (member.isRead)
            members[next++] = &member;
    std::ranges::sort(members, [](const MemberShape* a, const MemberShape* b) {
        return a->reading != b->reading ? a->reading < b->reading : a < b;
    });
    return members;
}();

template <std::size_t index>
[[nodiscard]] consteval SchemaRow rowOf() {
    constexpr const MemberShape& member = *readMembers[index];
    for (const SchemaRow& row : ownRows)
        if (row.name == member.name)
            return row;
    if constexpr (member.keyword) {
        constexpr SchemaKeyword keyword = *member.keyword;
        constexpr Arrangement arrangement = member.arrangement;
        switch (member.content) {
        case Content::Text:
            return {member.name, text<keyword>};
        case Content::Flag:
            return {member.name, boolean<keyword>};
        case Content::Number:
            return {member.name, number<keyword>};
        case Content::Limit:
            return {member.name, exclusive<keyword>};
        case Content::Count:
            return {member.name, count<keyword>};
        case Content::Object:
            return {member.name, arrangement == Arrangement::List  ? schemaList<keyword>
                                 : arrangement == Arrangement::Map ? schemaMap<keyword>
                                                                   : subschema<keyword>};
        default:
            break;
        }
    }
    throw "values and lists of texts are read by a function of their own: see ownRows";
}

template <typename Indices = std::make_index_sequence<readMembers.size()>>
struct SchemaRows;
template <std::size_t... index>
struct SchemaRows<std::index_sequence<index...>> {
    SchemaRow rows[sizeof...(index)] = {rowOf<index>()...};
};

constexpr ObjectReader<Schema, readMembers.size(), NodeType::Schema> schemaReader(SchemaRows<>().rows);

} // namespace
} // namespace schema_reading

void readSchema(ReaderContext& context, Schema& schema, const jv::JV& value) {
    if (value.isObject()) {
        schema.reserve(value.size());
        schema_reading::schemaReader.read(context, schema, value);
    } else if (value.isBoolean()) {
        schema.setSource(&value);
        if (!value.boolean())
            schema.createNot();
    } else {
        context.report(schema, &value, "Schema must be an object or boolean");
    }
}

} // namespace specloom::openapi
