#pragma once

#include "jv/jv.h"
#include "openapi/schema_type.h"

#include <memory>        // std::unique_ptr
#include <string>        // std::string
#include <string_view>   // std::string_view
#include <unordered_map> // std::unordered_map

namespace specloom::openapi {

struct SchemaFormat {
    std::string name;
    SchemaType type; ///< to which it applies
};

/// The formats that a schema may name: the built-in ones and those of the configuration. The formats live as
/// long as the registry, and a tree refers to them.
class SchemaFormatRegistry {
  public:
    /// Throws std::runtime_error "Schema format already exists: " and the name, for built-in ones too.
    void add(std::string_view name, SchemaType type);
    /// Adds the formats of an array of objects with the texts "name" and "type"; null adds none. Throws
    /// std::runtime_error "Custom format JV must be an array", jv::JVError for a missing or wrong member, and
    /// what add() and schemaTypeFromName() throw.
    void addFromJV(const jv::JV& value);
    /// Null when there is no such format.
    [[nodiscard]] const SchemaFormat* find(std::string_view name) const;

  private:
    std::unordered_map<std::string_view, std::unique_ptr<SchemaFormat>> custom_; ///< by SchemaFormat::name
};

} // namespace specloom::openapi
