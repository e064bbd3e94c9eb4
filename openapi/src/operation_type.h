#pragma once

#include <array>       // std::array
#include <cstdint>     // std::uint8_t
#include <optional>    // std::optional
#include <string_view> // std::string_view

namespace specloom::openapi {

/// The HTTP methods that a path item knows. The numbers are fixed.
enum class OperationType : std::uint8_t {
    Get = 0,
    Put = 1,
    Post = 2,
    Delete = 3,
    Options = 4,
    Head = 5,
    Patch = 6,
    Trace = 7,
};

inline constexpr std::array<std::string_view, 8> operationKeys{"get",     "put",  "post",  "delete",
                                                               "options", "head", "patch", "trace"};

/// The key in a path item. Throws std::runtime_error "invalid operation key {}" with the number for a value
/// outside the list.
[[nodiscard]] std::string_view operationKey(OperationType type);
/// Compares case-sensitively.
[[nodiscard]] bool isOperationKey(std::string_view text);

} // namespace specloom::openapi
