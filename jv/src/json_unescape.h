#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::jv {

/// Appends `text`, the inside of a JSON string whose escapes the lexer has checked, with its escapes replaced
/// (RFC 8259, section 7). A surrogate without its counterpart becomes "?".
void unescapeJSON(std::string_view text, std::string& out);

} // namespace specloom::jv
