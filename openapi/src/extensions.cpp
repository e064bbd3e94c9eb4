#include "openapi/extensions.h"

#include "foundation/message.h"
#include "jv/jv_pointer.h"

namespace specloom::openapi::extensions {

const jv::JV* find(const Node& node, std::string_view pointer) {
    const jv::JV* root = node.findExtension("x-specloom");
    if (root == nullptr)
        return nullptr;
    if (!root->isObject())
        throw ExtensionError("Extension root is not an object");
    jv::JVPointer tokens;
    tokens.parse(pointer);
    return root->resolve(tokens);
}

std::optional<bool> findBoolean(const Node& node, std::string_view pointer) {
    const jv::JV* value = find(node, pointer);
    if (value == nullptr)
        return std::nullopt;
    if (!value->isBoolean())
        throw ExtensionError(formatMessage("Extension '{}' does not represent a boolean", pointer));
    return value->boolean();
}

std::optional<std::string_view> findString(const Node& node, std::string_view pointer) {
    const jv::JV* value = find(node, pointer);
    if (value == nullptr)
        return std::nullopt;
    if (!value->isString())
        throw ExtensionError(formatMessage("Extension '{}' does not represent a string", pointer));
    return value->text();
}

} // namespace specloom::openapi::extensions
