#include "openapi/parameter_style.h"

#include <algorithm> // std::find
#include <array>     // std::array

namespace specloom::openapi {

namespace {

constexpr std::array<std::string_view, 7> styleNames{"matrix",         "label",         "form",      "simple",
                                                     "spaceDelimited", "pipeDelimited", "deepObject"};

} // namespace

std::string_view parameterStyleName(ParameterStyle style) {
    return styleNames.at(static_cast<std::size_t>(style));
}

std::optional<ParameterStyle> parameterStyleFromName(std::string_view name) {
    const auto found = std::find(styleNames.begin(), styleNames.end(), name);
    if (found == styleNames.end())
        return std::nullopt;
    return static_cast<ParameterStyle>(found - styleNames.begin());
}

} // namespace specloom::openapi
