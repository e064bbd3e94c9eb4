#include "command_pages/script.h"

namespace specloom::command_pages {

std::string singleQuoted(const std::string& word) {
    std::string result = "'";
    for (const char c : word) {
        if (c == '\'')
            result += "'\\''";
        else
            result += c;
    }
    return result + '\'';
}

std::string joined(const std::vector<std::string>& words, std::string_view separator,
                   std::string (*quote)(const std::string& word)) {
    std::string result;
    for (const std::string& word : words) {
        if (!result.empty())
            result += separator;
        result += quote(word);
    }
    return result;
}

std::string named(std::string_view text, std::string_view name) {
    static constexpr std::string_view placeHolder = "PROGRAM";
    std::string result(text);
    for (std::size_t at = 0; (at = result.find(placeHolder, at)) != std::string::npos; at += name.size())
        result.replace(at, placeHolder.size(), name);
    return result;
}

} // namespace specloom::command_pages
