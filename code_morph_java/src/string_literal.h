#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::code_morph::java {

/// A string literal (The Java Language Specification, Java SE 17, section 3.10.5) that stands for `text`, for
/// sources in UTF-8. It has one line and shows what it holds: control characters, line separators, controls
/// of writing direction and surrogates without a counterpart are escapes. Bytes that are not UTF-8 become
/// U+FFFD.
[[nodiscard]] std::string toStringLiteral(std::string_view text);

/// Whether a class file can hold `text` as one string. What is not UTF-8 is judged as toStringLiteral()
/// writes it, or as more.
[[nodiscard]] bool fitsConstant(std::string_view text);

} // namespace specloom::code_morph::java
