#pragma once

#include <cstdint>     // std::uint8_t
#include <optional>    // std::optional
#include <string_view> // std::string_view

namespace specloom::openapi {

/// How a value is serialised (OpenAPI 3.1.0, section 4.8.12.3).
enum class ParameterStyle : std::uint8_t {
    Matrix,
    Label,
    Form,
    Simple,
    SpaceDelimited,
    PipeDelimited,
    DeepObject
};

/// "matrix" and so on.
[[nodiscard]] std::string_view parameterStyleName(ParameterStyle style);
/// Compares case-sensitively.
[[nodiscard]] std::optional<ParameterStyle> parameterStyleFromName(std::string_view name);

} // namespace specloom::openapi
