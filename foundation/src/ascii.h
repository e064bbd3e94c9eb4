#pragma once

/// Classes of characters in ASCII, whatever the locale, for bytes and for code points. What is beyond ASCII
/// is in none.
namespace specloom::ascii {

template <typename Character>
[[nodiscard]] constexpr bool isDigit(Character c) noexcept {
    return c >= '0' && c <= '9';
}

template <typename Character>
[[nodiscard]] constexpr bool isUpper(Character c) noexcept {
    return c >= 'A' && c <= 'Z';
}

template <typename Character>
[[nodiscard]] constexpr bool isLower(Character c) noexcept {
    return c >= 'a' && c <= 'z';
}

template <typename Character>
[[nodiscard]] constexpr bool isLetter(Character c) noexcept {
    return isLower(c) || isUpper(c);
}

template <typename Character>
[[nodiscard]] constexpr bool isAlphanumeric(Character c) noexcept {
    return isLetter(c) || isDigit(c);
}

template <typename Character>
[[nodiscard]] constexpr bool isHexDigit(Character c) noexcept {
    return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

/// Space, \t, \n, \v, \f, \r.
template <typename Character>
[[nodiscard]] constexpr bool isSpace(Character c) noexcept {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

[[nodiscard]] constexpr char toLower(char c) noexcept {
    return isUpper(c) ? static_cast<char>(c - 'A' + 'a') : c;
}

[[nodiscard]] constexpr char toUpper(char c) noexcept {
    return isLower(c) ? static_cast<char>(c - 'a' + 'A') : c;
}

/// The value of a hexadecimal digit, 0 to 15; -1 for any other character.
template <typename Character>
[[nodiscard]] constexpr int hexValue(Character c) noexcept {
    if (isDigit(c))
        return static_cast<int>(c - '0');
    return isHexDigit(c) ? static_cast<int>((c | 0x20) - 'a' + 10) : -1;
}

} // namespace specloom::ascii
