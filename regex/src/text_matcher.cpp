#include "regex/text_matcher.h"

#include <algorithm> // std::all_of
#include <cstddef>   // std::size_t
#include <optional>  // std::optional

namespace specloom::regex {

namespace {

constexpr std::string_view special = R"(\^$.*+?()[]{}|/)";

/// Reads a literal character of a pattern: an ASCII one that means itself, or an escaped special one.
[[nodiscard]] std::optional<char> readLiteral(std::string_view& source, std::string_view alsoEscaped = {}) {
    if (source.empty())
        return std::nullopt;
    if (source[0] == '\\') {
        if (source.size() < 2 || (special.find(source[1]) == std::string_view::npos &&
                                  alsoEscaped.find(source[1]) == std::string_view::npos))
            return std::nullopt;
        const char c = source[1];
        source.remove_prefix(2);
        return c;
    }
    const char c = source[0];
    if ((special.find(c) != std::string_view::npos && c != '/') || static_cast<unsigned char>(c) >= 0x80)
        return std::nullopt;
    source.remove_prefix(1);
    return c;
}

[[nodiscard]] std::string readLiterals(std::string_view& source) {
    std::string text;
    while (const std::optional<char> c = readLiteral(source))
        text += *c;
    return text;
}

} // namespace

TextMatcher::TextMatcher(std::string_view source) {
    // The engine judges every pattern, also those that are matched without it.
    auto pattern = std::make_unique<const Pattern>(source);
    if (source.empty() || source == ".*" || source == "^.*")
        shape_ = Shape::Anything;
    else if (!readPrefixOrChoice(source) && !readBytes(source))
        pattern_ = std::move(pattern);
}

bool TextMatcher::readPrefixOrChoice(std::string_view source) {
    if (!source.starts_with('^'))
        return false;
    source.remove_prefix(1);
    std::vector<std::string> texts;
    const bool group = source.starts_with('(');
    if (group)
        source.remove_prefix(source.starts_with("(?:") ? 3 : 1);
    texts.push_back(readLiterals(source));
    while (group && source.starts_with('|')) {
        source.remove_prefix(1);
        texts.push_back(readLiterals(source));
    }
    if (group) {
        if (!source.starts_with(')'))
            return false;
        source.remove_prefix(1);
    }
    if (source == "$")
        shape_ = Shape::Choice;
    else if (source.empty())
        shape_ = Shape::Prefix;
    else
        return false;
    texts_ = std::move(texts);
    if (texts_.size() == 1 && !texts_.front().empty())
        first_ = texts_.front().front();
    return true;
}

bool TextMatcher::readBytes(std::string_view source) {
    if (!source.starts_with("^[") || source.starts_with("^[^"))
        return false;
    source.remove_prefix(2);
    std::array<bool, 256> bytes{};
    while (!source.starts_with(']')) {
        std::optional<char> first = readLiteral(source, "-");
        if (!first && !source.empty() &&
            std::string_view(".*+?(){}|$").find(source[0]) != std::string_view::npos) {
            first = source[0];
            source.remove_prefix(1);
        }
        if (!first)
            return false;
        char last = *first;
        if (source.size() > 1 && source[0] == '-' && source[1] != ']') {
            source.remove_prefix(1);
            const std::optional<char> end = readLiteral(source, "-");
            if (!end || *end < *first)
                return false;
            last = *end;
        }
        for (int c = *first; c <= last; ++c)
            bytes[static_cast<std::size_t>(c)] = true;
    }
    if (source != "]+$" && source != "]*$")
        return false;
    bytes_ = bytes;
    mayBeEmpty_ = source[1] == '*';
    shape_ = Shape::Bytes;
    return true;
}

TextMatcher::Outcome TextMatcher::searchShape(std::string_view text) const {
    bool matches = false;
    switch (shape_) {
    case Shape::Anything:
        return Outcome::Match;
    case Shape::General:
        return pattern_->search(text);
    case Shape::Prefix:
        for (const std::string& prefix : texts_)
            matches |= text.starts_with(prefix);
        break;
    case Shape::Choice:
        for (const std::string& choice : texts_)
            matches |= text == choice;
        break;
    case Shape::Bytes:
        matches = (mayBeEmpty_ || !text.empty()) && std::all_of(text.begin(), text.end(), [&](char c) {
                      return bytes_[static_cast<unsigned char>(c)];
                  });
        break;
    }
    return matches ? Outcome::Match : Outcome::NoMatch;
}

} // namespace specloom::regex
