#include "openapi_lint/path_parameters.h"

#include "openapi/url_template.h"

namespace specloom::openapi_lint {

PathParameterNames extractPathParameters(std::string_view url) {
    const auto names = openapi::templateNames(url);
    return {names.begin(), names.end()};
}

void erasePathParameters(PathParameterNames& names, const openapi::ParameterList& parameters) {
    for (const openapi::NodePointer& node : parameters.nodes()) {
        const auto* parameter = openapi::resolveTo<openapi::Parameter>(node.get());
        if (parameter != nullptr && parameter->location() == openapi::ParameterLocation::Path)
            names.erase(parameter->name());
    }
}

} // namespace specloom::openapi_lint
