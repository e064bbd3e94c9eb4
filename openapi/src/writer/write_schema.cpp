#include "foundation/unreachable.h"
#include "openapi/openapi.h"
#include "openapi/shape.h"
#include "openapi/writer/node_writers.h"

#include <algorithm> // std::ranges::count_if
#include <array>     // std::array
#include <utility>   // std::pair

namespace specloom::openapi {

// Short names for what a row writes, which other sources of the module may use otherwise.
namespace schema_writing {
namespace {

// ---- kinds of rows

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

// ---- single rows

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

// ---- the table

using Write = void (*)(ObjectWriter& out, std::string_view name, const Schema& schema, SchemaKeyword keyword);

struct SchemaMember {
    std::string_view name;
    Write write;
    std::optional<SchemaKeyword> keyword; ///< types are none
    bool only31;
};

/// Members that are not written by what stands there alone.
constexpr std::pair<std::string_view, Write> ownWrites[] = {
    {"default", defaultValue},
    {"type", types},
    {"format", format},
    {"enum", enumeration},
    {"definitions", definitions},
    {"examples", examples},
    {"required", required},
    {"additionalProperties", additionalProperties},
    {"dependentRequired", dependentRequired},
};

[[nodiscard]] constexpr Write objectWriteOf(Arrangement arrangement) {
    switch (arrangement) {
    case Arrangement::List:
        return list;
    case Arrangement::Map:
        return map;
    default:
        return child;
    }
}

[[nodiscard]] constexpr Write writeOf(const MemberShape& row) {
    for (const auto& [name, write] : ownWrites)
        if (name == row.name)
            return write;
    switch (row.content) {
    case Content::Text:
        return text;
    case Content::Flag:
        return flag;
    case Content::Number:
        return number;
    case Content::Limit:
        return exclusiveLimit;
    case Content::Count:
        return count;
    case Content::Object:
        return objectWriteOf(row.arrangement);
    default:
        throw "values and lists of texts are written by a function of their own: see ownWrites";
    }
}

constexpr auto schemaMembers = [] {
    constexpr auto isWritten = [](const MemberShape& row) { return row.written != Written::Never; };
    std::array<SchemaMember, std::ranges::count_if(shape::schema, isWritten)> members{};
    std::size_t next = 0;
    for (const MemberShape& row : shape::schema)
        if (isWritten(row))
            members[next++] = {row.name, writeOf(row), row.keyword, row.written == Written::Only31};
    return members;
}();

} // namespace
} // namespace schema_writing

void writeMembers(ObjectWriter& out, const Schema& schema) {
    for (const schema_writing::SchemaMember& member : schema_writing::schemaMembers) {
        if (member.only31 && out.context().isVersion30)
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
