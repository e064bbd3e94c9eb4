#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <nlohmann/json.hpp>

// What a document consists of, as far as changes of it are told: what tests know of the structure of
// documents, apart from the tree, its reader and the comparison, with what is particular to changes.
namespace specloom::openapi_diff::mutations {

using Json = nlohmann::json;

/// How a member is compared.
enum class Shape {
    Text,         ///< a value for which null is as good as nothing
    Value,        ///< any value, null included
    Flag,         ///< false where it is absent
    Types,        ///< the types of a schema, a set
    Object,       ///< an object, or a reference to one
    Always,       ///< an object that counts as an empty one where it is absent
    Map,          ///< objects or references by name
    Operations,   ///< the members that are named by methods
    Variables,    ///< those that a server's URL names
    TextMap,      ///< texts or values by name
    Named,        ///< a list of objects that go together by one of their members
    Parameters,   ///< a list of objects or references that go together by location and name
    Requirements, ///< a list of security requirements
    Schemas,      ///< a list of schemas or references to some
    Set,          ///< a list whose order is no matter; told by position
    NameSet,      ///< one that is reported by its texts
};

struct Field {
    std::string member;
    std::string key; ///< in the configuration: section and field
    Shape shape;
    std::string child; ///< section of the objects; for Named behind a slash the member
};

/// The fields of an object of a section.
[[nodiscard]] const std::vector<Field>& fieldsOf(std::string_view section);

/// The member of an object, or null where it does not count: when it is absent, and where another member
/// makes it void.
[[nodiscard]] const Json* memberOf(std::string_view section, const Json& object, const Field& field);

/// Whether references may stand in place of objects of a section.
[[nodiscard]] bool allowsReferences(std::string_view section);
/// The section of components that holds objects of a section; empty when there is none.
[[nodiscard]] std::string componentsOf(std::string_view section);

[[nodiscard]] bool isOpenAPI30(const Json& document);
[[nodiscard]] bool isReference(const Json& value);
/// The text behind the last slash.
[[nodiscard]] std::string targetName(const Json& reference);

/// A token of a JSON pointer (RFC 6901, section 3).
[[nodiscard]] std::string escaped(std::string_view key);

/// The names between braces in the URL of a server.
[[nodiscard]] std::vector<std::string> variableNames(const Json& server);

/// An object as fields are looked up in it: schemas may be booleans.
[[nodiscard]] const Json& asObject(const Json& value);

} // namespace specloom::openapi_diff::mutations
