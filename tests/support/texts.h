#pragma once

#include <cstddef>     // std::size_t
#include <sstream>     // std::istringstream
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::test_support {

/// A text that stands `times` times in a row.
[[nodiscard]] inline std::string repeated(std::string_view text, std::size_t times) {
    std::string result;
    result.reserve(text.size() * times);
    while (times-- > 0)
        result += text;
    return result;
}

/// The texts between the spaces and line ends of a text.
[[nodiscard]] inline std::vector<std::string> wordsOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> words;
    for (std::string word; stream >> word;)
        words.push_back(word);
    return words;
}

} // namespace specloom::test_support
