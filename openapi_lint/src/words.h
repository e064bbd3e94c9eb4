#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_lint {

/// A word of a text: letters, with apostrophes between them. Hyphens join parts to one word, such as
/// "re-use".
struct Word {
    std::string_view text;
    /// The parts between hyphens, without those that are names rather than words: that hold a digit, an
    /// underscore, an unreadable character (U+FFFD) or a capital behind their first letter, that are a single
    /// letter, or longer than any word (100 bytes). One part when there is no hyphen.
    std::vector<std::string_view> parts;
    /// Whether none was left out of the parts.
    bool isWhole = true;
};

/// The words of plain text in UTF-8, in their order, up to the first byte that is none. What stands between
/// white space and holds a URL or an e-mail address has none. The text must outlive them.
[[nodiscard]] std::vector<Word> wordsOf(std::string_view text);

/// The word with its first letter in lower case.
[[nodiscard]] std::string withSmallInitial(std::string_view word);

} // namespace specloom::openapi_lint
