#pragma once

#include <cstddef>     // std::size_t, std::ptrdiff_t
#include <cstdint>     // std::int64_t, std::uint64_t
#include <string>      // std::string
#include <string_view> // std::string_view

#include "foundation/unreachable.h"

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

/// `text` without its leading and trailing white space (blank, \t, \n, \v, \f, \r).
[[nodiscard]] std::string trim(std::string_view text);

/// Whether `text` is a letter or "_" followed by letters, digits and "_".
[[nodiscard]] bool isIdentifier(std::string_view text) noexcept;

/// Each line of `text` behind `count` blanks, joined by line feeds. A line feed at the end of the text ends
/// its last line and is not repeated; an empty text has no lines.
[[nodiscard]] std::string indentLines(std::string_view text, std::size_t count);

/// Replaces & < > " { } by character references: the braces too, because the text goes through templates and
/// component languages that take them for code.
[[nodiscard]] std::string escapeHtml(std::string_view text);

/// escapeHtml(), then escapeDoubleQuoted(): for HTML inside of a string literal.
[[nodiscard]] std::string escapeHtmlDoubleQuoted(std::string_view text);

/// Writes backslash, \b, \f, \n, \r, \t and the single quote as backslash escapes. All other bytes, control
/// characters and those of 128 and above included, stay as they are, so that UTF-8 passes unharmed.
[[nodiscard]] std::string escapeSingleQuoted(std::string_view text);

/// The same with the double quote for the single one.
[[nodiscard]] std::string escapeDoubleQuoted(std::string_view text);

/// The naming conventions of generated code.
enum class CaseStyle {
    Camel = 1,
    Const = 2,
    Kebab = 3,
    Pascal = 4,
    Header = 5,
    Snake = 6,
};

/// The style's name written in the style itself, such as "camelCase"; an unreachable path for any other
/// value.
[[nodiscard]] std::string_view caseStyleName(CaseStyle style);

/// The conversion that belongs to `style`; an unreachable path for any other value.
[[nodiscard]] std::string convertCase(std::string_view text, CaseStyle style);

// Each conversion finds its words by a rule of its own, and they differ on purpose. Separators are the blank
// and
// - / _ { } (the dot is none).

/// Runs between separators, each with its first byte upper-cased, the very first lower-cased: "pet_store"
/// gives "petStore", "XMLParser" gives "xMLParser".
[[nodiscard]] std::string toCamelCase(std::string_view text);

/// toCamelCase() with the first byte upper-cased.
[[nodiscard]] std::string toPascalCase(std::string_view text);

/// A word begins at an alphanumeric byte that is the first of the text or follows a separator, and at an
/// upper-case byte whose predecessor is not upper-case; it ends at a separator and before an upper-case byte
/// that follows an alphanumeric one that is not. "petStore" gives "PET_STORE", "XMLParser" gives "XMLPARSER".
[[nodiscard]] std::string toConstCase(std::string_view text);

/// Every upper-case byte and every byte behind a non-alphanumeric one begins a word: "XMLParser" gives
/// "x-m-l-parser".
[[nodiscard]] std::string toKebabCase(std::string_view text);

/// toKebabCase() with the first byte of each word upper-cased.
[[nodiscard]] std::string toHeaderCase(std::string_view text);

/// toKebabCase() with underscores.
[[nodiscard]] std::string toSnakeCase(std::string_view text);

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

/// The number of code points of a UTF-8 text (RFC 3629). Throws std::runtime_error with "Not enough space"
/// when the text ends inside a sequence, and with "Invalid UTF-8" for any other fault.
[[nodiscard]] std::size_t utf8Length(std::string_view text);

/// `text` with U+FFFD in place of what is not UTF-8 (RFC 3629), so that strict readers take it.
[[nodiscard]] std::string toValidUtf8(std::string_view text);

/// `prefix` followed by `text`.
[[nodiscard]] std::string joinWith(std::string_view prefix, std::string_view text);

} // namespace specloom
