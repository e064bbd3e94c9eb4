#pragma once

#include <cstddef>     // std::size_t, std::ptrdiff_t
#include <cstdint>     // std::int64_t, std::uint64_t
#include <string>      // std::string
#include <string_view> // std::string_view

/// The toolbox for byte strings. Characters are classified one byte at a time, in the C locale: a byte of 128
/// and above is neither a letter nor a digit nor white space, and has no case.
namespace specloom {

[[nodiscard]] std::string toLowerCase(std::string_view text);
[[nodiscard]] std::string toUpperCase(std::string_view text);

/// Compares the lower-cased texts byte by byte; negative, 0 or positive as std::string::compare.
[[nodiscard]] int compareIgnoreCase(std::string_view a, std::string_view b);

[[nodiscard]] bool startsWith(std::string_view text, std::string_view prefix) noexcept;
[[nodiscard]] bool endsWith(std::string_view text, std::string_view suffix) noexcept;

/// The 0-based offset in bytes of the first byte at or behind `from` that is none of `characters`; -1 when
/// there is none.
[[nodiscard]] std::ptrdiff_t findFirstNotOf(std::string_view text, std::string_view characters,
                                            std::size_t from = 0) noexcept;

/// Replaces each occurrence of `from`, left to right and without looking at what was put in. An empty `from`
/// does nothing.
void replaceAll(std::string& text, std::string_view from, std::string_view to);

/// Replaces each byte that is one of `characters` by `to`.
void replaceAny(std::string& text, std::string_view characters, std::string_view to);

/// `text` without its leading and trailing white space (space, \t, \n, \v, \f, \r).
[[nodiscard]] std::string trim(std::string_view text);

/// Whether `text` is a letter or "_" followed by letters, digits and "_".
[[nodiscard]] bool isIdentifier(std::string_view text) noexcept;

/// Each line of `text` behind `count` spaces, joined by line feeds. A line feed at the end of the text ends
/// its last line and is not repeated; an empty text has no lines.
[[nodiscard]] std::string indentLines(std::string_view text, std::size_t count);

/// A block of text without the lines and the indentation that come from where it stands: split into lines at
/// line feeds; the first line loses its leading and the last its trailing white space, and each is dropped if
/// that leaves it empty; then each line loses as many leading spaces as the first has, or as many as it has
/// if they are fewer. The lines are joined by line feeds.
[[nodiscard]] std::string trimLines(std::string_view text);

// Text to number by strtod, strtoll and strtoull (base 10), with all that they accept: leading white space,
// signs, and for doubles hexadecimal, "inf" and "nan". toUInt64("-1") is the largest value, as strtoull has
// it.
//
// All throw
//   std::invalid_argument "invalid stod argument"                     when there is no number at the start,
//   std::out_of_range     "stod argument out of range"                when its magnitude does not fit,
//   std::invalid_argument "strtod: whole string is not converted"     when something follows it,
// with stoll, stoull and strtol, strtoul in the texts of the other two.

[[nodiscard]] double toDouble(const std::string& text);
[[nodiscard]] std::int64_t toInt64(const std::string& text);
[[nodiscard]] std::uint64_t toUInt64(const std::string& text);

/// `prefix` followed by `text`.
[[nodiscard]] std::string joinWith(std::string_view prefix, std::string_view text);

} // namespace specloom
