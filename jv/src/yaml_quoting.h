#pragma once

#include <string_view> // std::string_view

namespace specloom::jv {

/// Whether a string would read back as something else if the emitter were free to leave it plain: for our
/// reader, and for others, which know more spellings of null, booleans and numbers than ours, and dates. The
/// exponent form of a number, "1e5", is deliberately not part of it.
[[nodiscard]] bool needsDoubleQuotes(std::string_view text) noexcept;

/// Whether well-formed UTF-8 names a surrogate or a code point above U+10FFFF. No YAML text can hold these,
/// not even escaped; libyaml's emitter lets them pass and its parser then refuses the whole text.
[[nodiscard]] bool hasForbiddenCodePoint(std::string_view text) noexcept;

} // namespace specloom::jv
