#include "openapi_generator/codegen_extensions.h"

#include "openapi/extensions.h"

namespace specloom::openapi_generator {

std::optional<std::string_view> actionNameOf(const openapi::Node& node) {
    return openapi::extensions::findString(node, "/codegen/action-name");
}

std::optional<std::string_view> controllerNameOf(const openapi::Node& node) {
    return openapi::extensions::findString(node, "/codegen/controller-name");
}

bool isDisabled(const openapi::Node& node) {
    return openapi::extensions::findBoolean(node, "/codegen/disabled").value_or(false);
}

std::optional<std::string_view> nameOf(const openapi::Node& node) {
    return openapi::extensions::findString(node, "/codegen/name");
}

} // namespace specloom::openapi_generator
