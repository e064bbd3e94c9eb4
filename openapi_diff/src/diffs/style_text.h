#pragma once

#include "openapi/parameter_style.h"

#include <optional>    // std::optional
#include <string_view> // std::string_view

namespace specloom::openapi_diff {

/// The text of a parameter's or encoding's `style`, if it has one.
template <typename N>
[[nodiscard]] std::optional<std::string_view> styleOf(const N& node) {
    const auto style = node.style();
    return style ? std::optional(openapi::parameterStyleName(*style)) : std::nullopt;
}

} // namespace specloom::openapi_diff
