#pragma once

#include "openapi/schema.h"

#include <optional>    // std::optional
#include <string_view> // std::string_view
#include <vector>      // std::vector

// Schemas of objects, and those that are put together of others by `allOf`.
namespace specloom::openapi_generator::server_spring {

/// The type of a schema, "null" aside: none without one, or with several.
[[nodiscard]] std::optional<openapi::SchemaType> singleType(const openapi::Schema& schema) noexcept;
/// Whether the schema has several types beside "null".
[[nodiscard]] bool hasSeveralTypes(const openapi::Schema& schema) noexcept;

/// The members of `allOf` and theirs, each once and behind its own members, the schema itself last. None
/// where there are more than mostArguments.
[[nodiscard]] std::optional<std::vector<const openapi::Schema*>> membersOf(const openapi::Schema& schema);

/// Whether Java has a class for the schema: one of the type "object", unless it only says which of other
/// schemas hold; or without a type, of members of which some are objects and none is anything else.
[[nodiscard]] bool isObject(const openapi::Schema& schema);

/// A property of an object.
struct ObjectProperty {
    std::string_view key;
    std::vector<const openapi::Schema*> schemas; ///< one for each member that has it
    bool isRequired = false;                     ///< by any member
};

/// The properties of the members of an object, each once, in their order; no more than one beyond
/// mostArguments.
[[nodiscard]] std::vector<ObjectProperty> propertiesOf(const std::vector<const openapi::Schema*>& members);

} // namespace specloom::openapi_generator::server_spring
