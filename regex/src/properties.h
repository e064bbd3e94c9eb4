#pragma once

#include "regex/charset.h"

#include <optional>    // std::optional
#include <string_view> // std::string_view

namespace specloom::regex {

/// The code points of what stands between the braces of \p{...}: NAME=VALUE with General_Category, Script or
/// Script_Extensions, a value of General_Category alone, or a binary property (ECMA-262, section 22.2.1.1,
/// tables 65 to 68). Nothing when there is no such property or no such value, or its table is not embedded.
[[nodiscard]] std::optional<CharSet> unicodeProperty(std::string_view expression);

} // namespace specloom::regex
