#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::markdown {

/// The text of a character reference with its "&" and semicolon, such as "&amp;", "&#38;" or "&#x26;"
/// (CommonMark 0.30, section 2.5, with the names of HTML); empty when it is none. What is no code point of
/// Unicode, and U+0000, is U+FFFD.
[[nodiscard]] std::string resolveCharacterReference(std::string_view written);

} // namespace specloom::markdown
