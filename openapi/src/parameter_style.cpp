#include "openapi/parameter_style.h"

#include <algorithm> // std::find
#include <array>     // std::array

namespace specloom::openapi {

namespace {

constexpr std::array<std::string_view, 7> names{"matrix",         "label",         "form",      "simple",
                                                "spaceDelimited", "pipeDelimited", "deepObject"};

} // namespace

std::string_view parameterStyleName(ParameterStyle style) {
    return names.at(static_cast<std::size_t>(style));
}

std::optional<ParameterStyle> parameterStyleFromName(std::string_view name) {
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end())
        return std::nullopt;
    return static_cast<ParameterStyle>(found - names.begin());
}

} // namespace specloom::openapi
