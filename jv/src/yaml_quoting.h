#pragma once

#include <string_view> // std::string_view

namespace specloom::jv {

/// Whether a string would not read back as the same string if the emitter were free to leave it plain.
[[nodiscard]] bool needsDoubleQuotes(std::string_view text) noexcept;

/// Whether well-formed UTF-8 names a surrogate or a code point above U+10FFFF. No YAML text can hold these,
/// not even escaped; libyaml's emitter lets them pass and its parser then refuses the whole text.
[[nodiscard]] bool hasForbiddenCodePoint(std::string_view text) noexcept;

} // namespace specloom::jv
