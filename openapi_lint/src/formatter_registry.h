#pragma once

#include "openapi_lint/formatter.h"

#include <memory>      // std::unique_ptr
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_lint {

/// The form that reports have when nobody chooses.
inline constexpr std::string_view defaultFormatter = "stylish";

/// A formatter of that name on that stream. Throws std::runtime_error "Formatter not found: " and the name.
[[nodiscard]] std::unique_ptr<Formatter> findFormatter(std::string_view name, std::ostream& stream);

/// All names, in byte-wise order.
[[nodiscard]] std::vector<std::string_view> formatterNames();

} // namespace specloom::openapi_lint
