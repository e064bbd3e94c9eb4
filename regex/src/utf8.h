#pragma once

#include <string_view> // std::string_view

namespace specloom::regex {

inline constexpr char32_t replacementCharacter = 0xFFFD;

struct DecodedCharacter {
    char32_t codePoint;
    /// Bytes, 1 to 4.
    unsigned length;
    bool valid;
};

/// The code point (RFC 3629) at the beginning of a text that is not empty; a byte that begins none is one
/// U+FFFD of its own.
[[nodiscard]] DecodedCharacter decodeCharacter(std::string_view text);

} // namespace specloom::regex
