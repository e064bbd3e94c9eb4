#include "openapi_diff/diffs/schema_diff.h"

#include "jv/equal_values.h"
#include "openapi/schema_format.h"
#include "openapi_diff/config_fields.h"
#include "openapi_diff/diffs/composed_schemas_diff.h"
#include "openapi_diff/diffs/discriminator_diff.h"
#include "openapi_diff/diffs/external_documentation_diff.h"
#include "openapi_diff/diffs/list_pairing.h"
#include "openapi_diff/diffs/xml_diff.h"

#include <algorithm> // std::binary_search, std::ranges::all_of, std::ranges::count_if
#include <array>     // std::array
#include <bit>       // std::countr_zero
#include <utility>   // std::pair

namespace specloom::openapi_diff {
// Short names for what a row compares, which other sources of the module may use otherwise.
namespace schema_rows {
namespace {

using openapi::Schema;
using openapi::SchemaKeyword;

struct Row;
using Compare = void (*)(const Row& row, const Schema* source, const Schema* destination,
                         DiffContext& context);

/// One field of the section, with the keyword that it is kept under.
struct Row {
    ConfigKey key;
    std::optional<SchemaKeyword> keyword; ///< none for `type`, which is kept apart
    Compare compare;
};

// ---- values

/// Compares what a getter by keyword returns.
template <auto get>
void value(const Row& row, const Schema* source, const Schema* destination, DiffContext& context) {
    context.field(row.key, source, destination,
                  [&](const Schema& schema) { return (schema.*get)(*row.keyword); });
}

/// The same for a getter of its own.
template <auto get>
void field(const Row& row, const Schema* source, const Schema* destination, DiffContext& context) {
    context.field(row.key, source, destination, get);
}

std::optional<std::uint64_t> typesOf(const Schema& schema) {
    return schema.types().empty() ? std::nullopt
                                  : std::optional(static_cast<std::uint64_t>(schema.types().bits()));
}

/// Formats are compared by name: each document may have been read with a registry of its own.
std::optional<std::string_view> formatOf(const Schema& schema) {
    return schema.format() == nullptr ? std::nullopt : std::optional(std::string_view(schema.format()->name));
}

bool isDeprecated(const Schema& schema) {
    return schema.deprecated().value_or(false);
}

/// The tree keeps `const` as an `enum` of one value.
bool hasConstant(const Schema& schema) {
    const jv::JV* object = schema.source();
    return schema.has(SchemaKeyword::Enum) && object != nullptr && object->isObject() && object->has("const");
}

const jv::JV* constantOf(const Schema& schema) {
    return hasConstant(schema) ? schema.enumeration().front().get() : nullptr;
}

const std::vector<openapi::Value>& enumerationOf(const Schema& schema) {
    static const std::vector<openapi::Value> none;
    return hasConstant(schema) ? none : schema.enumeration();
}

/// Whether one schema has a constant and the other an enumeration of it alone, which says the same.
bool allowOneValue(const Schema* source, const Schema* destination) {
    if (source == nullptr || destination == nullptr || hasConstant(*source) == hasConstant(*destination))
        return false;
    const jv::JV& constant = *constantOf(hasConstant(*source) ? *source : *destination);
    const auto& values = (hasConstant(*source) ? *destination : *source).enumeration();
    return !values.empty() && std::ranges::all_of(values, [&](const openapi::Value& value) {
        return jv::equalValues(*value, constant);
    });
}

void constant(const Row& row, const Schema* source, const Schema* destination, DiffContext& context) {
    if (!allowOneValue(source, destination))
        field<&constantOf>(row, source, destination, context);
}

/// The values are a set. A value that went away is reported where the source has it.
void enumeration(const Row& row, const Schema* source, const Schema* destination, DiffContext& context) {
    if (allowOneValue(source, destination))
        return;
    static const std::vector<openapi::Value> none;
    const auto& before = source == nullptr ? none : enumerationOf(*source);
    const auto& after = destination == nullptr ? none : enumerationOf(*destination);
    if (agreeInOrder(before.size(), after.size(),
                     [&](std::size_t i) { return jv::equalValues(*before[i], *after[i]); }))
        return;
    const auto keysOf = [](const std::vector<openapi::Value>& values) {
        std::vector<ValueKey> keys;
        keys.reserve(values.size());
        for (const openapi::Value& entry : values)
            keys.emplace_back(*entry);
        return keys;
    };
    const auto keysBefore = keysOf(before);
    const auto keysAfter = keysOf(after);
    compareSets<ValueKeyHash>(
        before.size(), after.size(),
        [&](DocumentSide side, std::size_t i) {
            return side == DocumentSide::Source ? keysBefore[i] : keysAfter[i];
        },
        [&](DocumentSide side, std::size_t i) {
            const auto index = static_cast<std::int64_t>(i);
            if (side == DocumentSide::Destination) {
                const auto scope = context.enterIndex(nullptr, destination, row.key, index);
                context.added(row.key, *destination, after[i].get());
            } else {
                const auto scope = context.enterIndex(source, nullptr, row.key, index);
                context.removed(row.key, *source, before[i].get());
            }
        });
}

/// The names are kept in order.
void required(const Row& row, const Schema* source, const Schema* destination, DiffContext& context) {
    static const std::vector<openapi::Text> none;
    const auto& before = source == nullptr ? none : source->required();
    const auto& after = destination == nullptr ? none : destination->required();
    const auto less = [](const openapi::Text& a, const openapi::Text& b) { return a.view() < b.view(); };
    const auto missingIn = [&](const auto& names, const openapi::Text& name) {
        return !std::binary_search(names.begin(), names.end(), name, less);
    };
    for (const openapi::Text& name : after)
        if (missingIn(before, name)) {
            const auto scope = context.enterKey(nullptr, destination, row.key, name.view());
            context.added(row.key, *destination, true);
        }
    for (const openapi::Text& name : before)
        if (missingIn(after, name)) {
            const auto scope = context.enterKey(source, nullptr, row.key, name.view());
            context.removed(row.key, *source, true);
        }
}

// ---- nodes

void schema(const Row& row, const Schema* source, const Schema* destination, DiffContext& context) {
    diffField<SchemaDiff>(row.key, source, destination, context,
                          [&](const Schema& node) { return node.node(*row.keyword); });
}

/// Whether nothing in a schema could be told.
bool saysNothing(const Schema& node) {
    return node.keywordCount() == 0 && node.types().empty() && node.extensions().empty();
}

/// A schema that says nothing refuses everything when it stands here: so the tree keeps `false`. That it came
/// or went is all there is to tell of it, and is reported as of a value.
void notSchema(const Row& row, const Schema* source, const Schema* destination, DiffContext& context) {
    const auto refusesAll = [](const Schema* node) {
        const openapi::Node* inner = node == nullptr ? nullptr : node->node(SchemaKeyword::Not);
        return inner != nullptr && inner->type() == openapi::NodeType::Schema &&
               saysNothing(static_cast<const Schema&>(*inner));
    };
    const auto has = [](const Schema* node) { return node != nullptr && node->has(SchemaKeyword::Not); };
    if (refusesAll(destination) && !has(source))
        return context.added(row.key, *destination, true);
    if (refusesAll(source) && !has(destination))
        return context.removed(row.key, *source, true);
    schema(row, source, destination, context);
}

void schemaList(const Row& row, const Schema* source, const Schema* destination, DiffContext& context) {
    const auto list = [&](const Schema& node) -> const openapi::NodeList& { return node.list(*row.keyword); };
    diffComposedSchemas(row.key, childOf(source, list), childOf(destination, list), context);
}

void schemaMap(const Row& row, const Schema* source, const Schema* destination, DiffContext& context) {
    diffMaps<SchemaDiff>(
        row.key, source, destination, context,
        [&](const Schema& node) -> const openapi::NodeMap& { return node.map(*row.keyword); });
}

template <typename Diff, auto get>
void object(const Row& row, const Schema* source, const Schema* destination, DiffContext& context) {
    diffField<Diff>(row.key, source, destination, context, get);
}

// ---- the section

constexpr Compare text = value<&Schema::text>;
constexpr Compare count = value<&Schema::count>;
constexpr Compare number = value<&Schema::number>;
constexpr Compare boolean = value<&Schema::boolean>;
constexpr Compare limit = value<&Schema::exclusiveLimit>;

using enum ConfigKey;

/// Fields that are not compared by what stands there alone.
constexpr std::pair<ConfigKey, Compare> ownCompares[] = {
    {SchemaType, field<&typesOf>},
    {SchemaFormat, field<&formatOf>},
    {SchemaConst, constant},
    {SchemaEnum, enumeration},
    {SchemaDeprecated, field<&isDeprecated>},
    {SchemaRequired, required},
    {SchemaNot, notSchema},
    {SchemaDiscriminator, object<DiscriminatorDiff, &Schema::discriminator>},
    {SchemaXml, object<XMLDiff, &Schema::xml>},
    {SchemaExternalDocs, object<ExternalDocumentationDiff, &Schema::externalDocs>},
    {SchemaExamples, field<&Schema::examples>},
    {SchemaDefault, field<&Schema::defaultValue>},
};

[[nodiscard]] constexpr Compare compareOf(ConfigKey key, const openapi::MemberShape& member) {
    for (const auto& [own, compare] : ownCompares)
        if (own == key)
            return compare;
    switch (member.content) {
    case openapi::Content::Text:
        return text;
    case openapi::Content::Flag:
        return boolean;
    case openapi::Content::Number:
        return number;
    case openapi::Content::Limit:
        return limit;
    case openapi::Content::Count:
        return count;
    case openapi::Content::Object:
        return member.arrangement == openapi::Arrangement::List  ? schemaList
               : member.arrangement == openapi::Arrangement::Map ? schemaMap
                                                                 : schema;
    default:
        throw "values and lists of texts are compared by a function of their own: see ownCompares";
    }
}

constexpr auto rows = [] {
    constexpr auto isOfSchema = [](const config_fields::FieldShape& field) {
        return field.object->kind == openapi::ObjectKind::Schema;
    };
    std::array<Row, std::ranges::count_if(config_fields::shapes, isOfSchema)> table{};
    std::size_t next = 0;
    for (std::size_t at = 0; at < config_fields::shapes.size(); ++at)
        if (isOfSchema(config_fields::shapes[at])) {
            const openapi::MemberShape& member = *config_fields::shapes[at].member;
            const auto key = static_cast<ConfigKey>(at);
            table[next++] = {key, member.keyword, compareOf(key, member)};
        }
    return table;
}();

/// A bit for each row.
using RowSet = std::uint64_t;
static_assert(rows.size() <= 64,
              "a bit for each row: for more rows make RowSet an array of words, and go over the words");

constexpr RowSet typeRow = [] {
    RowSet set = 0;
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (!rows[i].keyword)
            set |= RowSet{1} << i;
    return set;
}();

/// By keyword. Some have no field, and `enum` has two.
constexpr std::array<RowSet, openapi::schemaKeywordCount> rowsOfKeywords = [] {
    std::array<RowSet, openapi::schemaKeywordCount> sets{};
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (rows[i].keyword)
            sets[static_cast<std::size_t>(*rows[i].keyword)] |= RowSet{1} << i;
    return sets;
}();

/// The rows about keywords that one of the schemas has.
RowSet rowsAbout(const Schema* source, const Schema* destination) {
    const auto keywordsOf = [](const Schema* node) {
        return node == nullptr ? openapi::SchemaKeywords() : node->keywords();
    };
    RowSet set = typeRow;
    openapi::SchemaKeywords::forEachOf(
        keywordsOf(source), keywordsOf(destination),
        [&](SchemaKeyword keyword) { set |= rowsOfKeywords[static_cast<std::size_t>(keyword)]; });
    return set;
}

} // namespace
} // namespace schema_rows

void SchemaDiff::diff(const openapi::Schema* source, const openapi::Schema* destination,
                      DiffContext& context) const {
    context.mark(source, destination);
    for (auto set = schema_rows::rowsAbout(source, destination); set != 0; set &= set - 1) {
        const schema_rows::Row& row = schema_rows::rows[static_cast<std::size_t>(std::countr_zero(set))];
        row.compare(row, source, destination, context);
    }
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
