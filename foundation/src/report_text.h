#pragma once

#include <cstddef>     // std::size_t
#include <string>      // std::string
#include <string_view> // std::string_view

// What the reports for people and for tools that read lines do to texts that come from documents.
namespace specloom {

/// `text` with its control characters (U+0000 to U+001F, U+007F to U+009F) as \n, \r, \t or \u and four
/// hexadecimal digits. Reports are read line by line, and no document may send commands to a terminal.
[[nodiscard]] std::string singleLine(std::string_view text);

/// How many characters a text of UTF-8 has, counted in code points.
[[nodiscard]] std::size_t columnsOf(std::string_view text) noexcept;

} // namespace specloom
