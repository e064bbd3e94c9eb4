#include "mutations/classifications.h"

#include <sstream>   // std::istringstream
#include <stdexcept> // std::invalid_argument

namespace specloom::openapi_diff::mutations {
namespace {

int levelOf(const std::string& word) {
    const std::map<std::string, int> levels{
        {"none", 0}, {"non_functional", 1}, {"non_breaking", 2}, {"breaking", 3}, {"nested", 4}};
    return levels.at(word);
}

/// The word behind "name: " in a flow mapping; empty when there is none.
std::string wordBehind(const std::string& text, const std::string& name) {
    const std::size_t at = text.find(name + ": ");
    if (at == std::string::npos)
        return "";
    const std::size_t begin = at + name.size() + 2;
    return text.substr(begin, text.find_first_of(",} ", begin) - begin);
}

} // namespace

Classifications::Classifications(const std::string& text) {
    std::istringstream lines(text);
    std::string section;
    for (std::string line; std::getline(lines, line);) {
        const std::size_t start = line.find_first_not_of(' ');
        if (start == std::string::npos || start == 0)
            continue; // a comment, or "rules:"
        const std::size_t colon = line.find(':');
        const std::string name = line.substr(start, colon - start);
        const std::string value = colon + 2 < line.size() ? line.substr(colon + 2) : "";
        if (start == 2)
            section = name;
        if (!value.empty())
            entries_[start == 2 ? name : section + "." + name] = value;
    }
}

int Classifications::level(const std::string& key, const std::string& action,
                           std::optional<bool> condition) const {
    const std::string& entry = entries_.at(key);
    if (entry.front() != '{')
        return levelOf(entry);
    std::size_t at = entry.find("{" + action + ": ");
    if (at == std::string::npos)
        at = entry.find(" " + action + ": ");
    if (at == std::string::npos)
        return 0;
    const std::string level = entry.substr(at + action.size() + 3);
    if (level.front() != '{')
        return levelOf(level.substr(0, level.find_first_of(",}")));
    if (!condition)
        throw std::invalid_argument("A condition is needed for " + key);
    const bool expected = wordBehind(level, "if") == "true";
    return levelOf(wordBehind(level, *condition == expected ? "then" : "else"));
}

} // namespace specloom::openapi_diff::mutations
