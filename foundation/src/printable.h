#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view

// What is done to a text of unknown origin before it is shown to a person, printed to a terminal or to the
// log of a build, or read line by line by a tool.
namespace specloom {

/// `text` as one line of UTF-8 in which nothing acts but what can be read:
///   - line feed, carriage return and tab become \n, \r and \t;
///   - the other control characters (U+0000 to U+001F, U+007F to U+009F), the line and paragraph separators
///     (U+2028, U+2029), the controls of writing direction (U+202A to U+202E, U+2066 to U+2069) and the two
///     noncharacters that XML forbids (U+FFFE, U+FFFF) become \u and four hexadecimal digits;
///   - so does the bracket behind "##" or "##" and letters, as in "##[group]" and "##vso[task.complete]",
///   where
///     services that run builds look for commands in any place of a line;
///   - bytes that are not UTF-8 become U+FFFD.
/// All else, the backslash included, stays. A printable text comes out as it is.
[[nodiscard]] std::string printable(std::string_view text);

/// The same for a text that begins a line: the first of two colons at its beginning, spaces before them
/// aside, becomes \u003a, because "::" at the beginning of a line begins a command there.
[[nodiscard]] std::string printableAtLineStart(std::string_view text);

/// Each line of `text` by printableAtLineStart(): for a text that has lines of its own.
[[nodiscard]] std::string printableLines(std::string_view text);

/// Appends \u and four hexadecimal digits: how everything that must not act is spelt.
void appendUnicodeEscape(char32_t codePoint, std::string& text);

} // namespace specloom
