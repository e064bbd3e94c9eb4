#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

/// What the writers of scripts have in common.
namespace specloom::command_pages {

/// Between single quotes, as the Bourne shells and their heirs take a word to the letter.
[[nodiscard]] std::string singleQuoted(const std::string& word);

/// The words, each as `quote` has it, with `separator` between them.
[[nodiscard]] std::string joined(const std::vector<std::string>& words, std::string_view separator,
                                 std::string (*quote)(const std::string& word));

/// The text with the name in each place of "PROGRAM".
[[nodiscard]] std::string named(std::string_view text, std::string_view name);

} // namespace specloom::command_pages
