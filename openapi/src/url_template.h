#pragma once

#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi {

/// What stands between the braces of each match of the regular expression `\{[^}]*\}`, from left to right.
/// The names lie in `url`. Stray closing braces and an opening one that is never closed match nothing.
[[nodiscard]] std::vector<std::string_view> templateNames(std::string_view url);

} // namespace specloom::openapi
