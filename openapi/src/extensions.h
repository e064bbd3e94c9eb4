#pragma once

#include "foundation/message.h"
#include "openapi/node.h"

// The program's own settings in a document: what stands under the one member "x-specloom" of any node.
namespace specloom::openapi::extensions {

class ExtensionError : public std::runtime_error {
  public:
    explicit ExtensionError(const Message& message) : std::runtime_error(message.composed()) {}
};

/// The value at a JSON pointer (RFC 6901) below "x-specloom", or null. Throws ExtensionError "Extension root
/// is not an object" when the node has that member and it is of another kind.
[[nodiscard]] const jv::JV* find(const Node& node, std::string_view pointer);
/// The same as a boolean; empty when absent. Throws also ExtensionError "Extension '{}' does not represent a
/// boolean" with the pointer.
[[nodiscard]] std::optional<bool> findBoolean(const Node& node, std::string_view pointer);
/// The same as a text; ExtensionError "Extension '{}' does not represent a string".
[[nodiscard]] std::optional<std::string_view> findString(const Node& node, std::string_view pointer);

} // namespace specloom::openapi::extensions
