#pragma once

#include <cstddef>     // std::size_t
#include <string>      // std::string
#include <string_view> // std::string_view

// UTF-8 (RFC 3629), by utfcpp.
namespace specloom {

/// Whether the byte goes on with a sequence that an earlier one began.
[[nodiscard]] constexpr bool isContinuationByte(char byte) noexcept {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// The number of code points of a UTF-8 text. Throws std::runtime_error with "Not enough space" when the text
/// ends inside a sequence, and with "Invalid UTF-8" for any other fault.
[[nodiscard]] std::size_t utf8Length(std::string_view text);

[[nodiscard]] bool isValidUtf8(std::string_view text) noexcept;

/// `text` with U+FFFD in place of what is not UTF-8, so that strict readers take it.
[[nodiscard]] std::string toValidUtf8(std::string_view text);

/// How many characters a text has, counted in code points. What is not UTF-8 may be counted in any way.
[[nodiscard]] std::size_t columnsOf(std::string_view text) noexcept;

/// The length in bytes of the first `columns` code points of a UTF-8 text, or of all of it if it has fewer.
[[nodiscard]] std::size_t bytesOfColumns(std::string_view text, std::size_t columns) noexcept;

/// The length in bytes of the code points that end within the first `size` bytes of a longer UTF-8 text.
[[nodiscard]] std::size_t wholeCodePoints(std::string_view text, std::size_t size) noexcept;

/// Appends the sequence of a code point, which must be one: at most U+10FFFF and no surrogate.
void appendUtf8(char32_t codePoint, std::string& text);

} // namespace specloom
