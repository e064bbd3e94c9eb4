#pragma once

#include <string_view> // std::string_view

namespace specloom {

/// The address under which the project's documentation is published; no slash at its end.
inline constexpr std::string_view documentationSite = "https://specloom.dev/techdocs";

} // namespace specloom
