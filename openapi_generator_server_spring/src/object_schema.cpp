#include "openapi_generator_server_spring/object_schema.h"

#include "foundation/text_tables.h"
#include "openapi_generator_server_spring/context.h"

#include <algorithm>     // std::any_of
#include <unordered_set> // std::unordered_set

namespace specloom::openapi_generator::server_spring {
namespace {

using openapi::Schema;
using openapi::SchemaType;

std::size_t typeCount(const Schema& schema) noexcept {
    return schema.types().size() - (schema.types().has(SchemaType::Null) ? 1 : 0);
}

bool mayBeObject(const Schema& schema) noexcept {
    return typeCount(schema) == 0 || singleType(schema) == SchemaType::Object;
}

bool looksLikeObject(const Schema& schema) {
    return singleType(schema) == SchemaType::Object || !schema.properties().empty();
}

bool isChoice(const Schema& schema) {
    return !schema.oneOf().empty() || !schema.anyOf().empty();
}

/// Notes which properties a member requires, in a time that neither of the two lists makes long alone.
void noteRequired(const Schema& member, const TextViewMap<std::size_t>& positions,
                  std::vector<ObjectProperty>& properties) {
    if (member.required().size() > properties.size()) {
        for (ObjectProperty& property : properties)
            property.isRequired = property.isRequired || member.isRequired(property.key);
        return;
    }
    for (const openapi::Text& name : member.required())
        if (const auto found = positions.find(name.view()); found != positions.end())
            properties[found->second].isRequired = true;
}

} // namespace

std::optional<SchemaType> singleType(const Schema& schema) noexcept {
    if (typeCount(schema) != 1)
        return std::nullopt;
    for (std::size_t type = 0; type < openapi::schemaTypeCount; ++type)
        if (static_cast<SchemaType>(type) != SchemaType::Null &&
            schema.types().has(static_cast<SchemaType>(type)))
            return static_cast<SchemaType>(type);
    return std::nullopt;
}

bool hasSeveralTypes(const Schema& schema) noexcept {
    return typeCount(schema) > 1;
}

std::optional<std::vector<const Schema*>> membersOf(const Schema& schema) {
    struct Step {
        const Schema* schema;
        std::size_t next; ///< of its allOf
    };
    std::vector<const Schema*> members;
    std::unordered_set<const Schema*> seen = {&schema};
    std::vector<Step> path = {{&schema, 0}};
    while (!path.empty()) {
        Step& step = path.back();
        if (step.next == step.schema->allOf().size()) {
            members.push_back(step.schema);
            path.pop_back();
            continue;
        }
        const Schema* member = openapi::resolveTo<Schema>(step.schema->allOf()[step.next++].get());
        if (member == nullptr || !seen.insert(member).second)
            continue;
        if (seen.size() > mostArguments + 1)
            return std::nullopt;
        path.push_back({member, 0});
    }
    return members;
}

bool isObject(const Schema& schema) {
    if (singleType(schema) == SchemaType::Object)
        return !isChoice(schema) || !schema.properties().empty() || !schema.allOf().empty();
    if (typeCount(schema) != 0 || schema.allOf().empty())
        return false;
    const auto members = membersOf(schema);
    return !members || (std::any_of(members->begin(), members->end(),
                                    [](const Schema* member) { return looksLikeObject(*member); }) &&
                        std::all_of(members->begin(), members->end(),
                                    [](const Schema* member) { return mayBeObject(*member); }));
}

std::vector<ObjectProperty> propertiesOf(const std::vector<const Schema*>& members) {
    std::vector<ObjectProperty> properties;
    TextViewMap<std::size_t> positions;
    for (const Schema* member : members)
        for (const auto& entry : member->properties()) {
            const Schema* schema = openapi::resolveTo<Schema>(entry.value.get());
            if (schema == nullptr)
                continue;
            const auto [found, isNew] = positions.emplace(entry.name(), properties.size());
            if (isNew)
                properties.push_back({entry.name(), {schema}, false});
            else
                properties[found->second].schemas.push_back(schema);
            if (properties.size() > mostArguments)
                return properties;
        }
    for (const Schema* member : members)
        noteRequired(*member, positions, properties);
    return properties;
}

} // namespace specloom::openapi_generator::server_spring
