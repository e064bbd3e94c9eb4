#pragma once

/// Classes of bytes in ASCII, whatever the locale.
namespace specloom::ascii {

[[nodiscard]] constexpr bool isDigit(char byte) noexcept {
    return byte >= '0' && byte <= '9';
}

[[nodiscard]] constexpr bool isLetter(char byte) noexcept {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

[[nodiscard]] constexpr bool isHexDigit(char byte) noexcept {
    return isDigit(byte) || (byte >= 'a' && byte <= 'f') || (byte >= 'A' && byte <= 'F');
}

} // namespace specloom::ascii
