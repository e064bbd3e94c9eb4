#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view

// How a text is put into a file of Astro, so that it stands for itself whatever it holds. What is not UTF-8
// becomes U+FFFD: such files are UTF-8.
namespace specloom::code_morph::astro {

/// Text between elements: trimLines(), then escapeHtml(). Characters that HTML does not allow there (control
/// characters other than white space) become U+FFFD.
[[nodiscard]] std::string toAstroText(std::string_view text);

/// The value of an attribute: an expression in braces that is a string literal, such as {"a \"b\""}. Nothing
/// in it ends the literal, and so nothing the expression; and nothing is a tag of a script or a comment.
[[nodiscard]] std::string toAstroAttribute(std::string_view text);

/// The literal alone, for expressions and objects. It is one of JSON too.
[[nodiscard]] std::string toAstroLiteral(std::string_view text);
/// The same at the end of `out`.
void appendAstroLiteral(std::string_view text, std::string& out);

} // namespace specloom::code_morph::astro
