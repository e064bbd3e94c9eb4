#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view

// The escapes of the languages that texts are put into, one function each. They make a text stand for itself
// in that language; what must not act wherever it is shown is printable()'s business, which comes first. JSON
// and YAML have writers of their own.
namespace specloom {

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

/// A JSON text (RFC 8259) that stands for the string: `text` in double quotes, escaped by
/// escapeDoubleQuoted(); the other control characters below U+0020, which JSON forbids there, as \u and four
/// hexadecimal digits. It is a literal of JavaScript and of Java too.
[[nodiscard]] std::string toJsonLiteral(std::string_view text);

/// A string literal of JavaScript (ECMA-262 since its 10th edition): `text` in single quotes, escaped by
/// escapeSingleQuoted(). All other bytes may stand in one.
[[nodiscard]] std::string toJavaScriptLiteral(std::string_view text);

/// Markdown (CommonMark 0.30, section 2.4, with the tables and strikethrough of GitHub) that shows `text`,
/// one line, as it is. Underscores within a word stay. What viewers make links of beyond Markdown is spelt
/// with escapes as printable() does: "@" before a word (mentions, mail addresses), the colon of "://", the
/// dot of "www.", the mark of "#1", "!1" and "GH-1" (references to issues).
[[nodiscard]] std::string escapeMarkdown(std::string_view text);

/// The description of a test in TAP 14: backslash and "#" behind a backslash, for "#" begins a directive.
[[nodiscard]] std::string escapeTap(std::string_view text);

} // namespace specloom
