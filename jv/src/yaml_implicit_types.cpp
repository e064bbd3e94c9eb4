// Matchers written by hand: the one of the standard library recurses with its input.

#include "jv/yaml_implicit_types.h"

#include <algorithm> // std::ranges::find

namespace specloom::jv {

namespace {

constexpr std::string_view decimalDigits = "0123456789";
constexpr std::string_view groupedDigits = "0123456789_";

/// Drops the characters of a set from the front; returns how many there were.
std::size_t skipAll(std::string_view& text, std::string_view characters) noexcept {
    const std::size_t end = text.find_first_not_of(characters);
    const std::size_t count = end == std::string_view::npos ? text.size() : end;
    text.remove_prefix(count);
    return count;
}

/// Drops one character of a set from the front, if there is one.
bool skipOne(std::string_view& text, std::string_view characters) noexcept {
    if (text.empty() || characters.find(text.front()) == std::string_view::npos)
        return false;
    text.remove_prefix(1);
    return true;
}

[[nodiscard]] bool isWord(std::string_view text) noexcept {
    static constexpr std::string_view words[] = {
        "~",   "null", "Null", "NULL", "true", "True", "TRUE", "false", "False", "FALSE",
        "yes", "Yes",  "YES",  "no",   "No",   "NO",   "on",   "On",    "ON",    "off",
        "Off", "OFF",  "y",    "Y",    "n",    "N",    "=",    "<<",
    };
    return std::ranges::find(words, text) != std::end(words);
}

[[nodiscard]] bool isInfinityOrNaN(std::string_view text) noexcept {
    if (text == ".nan" || text == ".NaN" || text == ".NAN")
        return true;
    skipOne(text, "+-");
    return text == ".inf" || text == ".Inf" || text == ".INF";
}

/// 0b1010, 0o17, 0x1F.
[[nodiscard]] bool isPrefixedInteger(std::string_view text) noexcept {
    skipOne(text, "+-");
    if (!skipOne(text, "0") || text.size() < 2)
        return false;
    const std::string_view digits = text.front() == 'b'   ? "01_"
                                    : text.front() == 'o' ? "01234567_"
                                    : text.front() == 'x' ? "0123456789abcdefABCDEF_"
                                                          : "";
    text.remove_prefix(1);
    return !digits.empty() && skipAll(text, digits) != 0 && text.empty();
}

/// 1, 1_000, 1.5, 1., .5, 1.5e3 and, in base 60, 12:30:45.
[[nodiscard]] bool isDecimal(std::string_view text) noexcept {
    skipOne(text, "+-");
    std::size_t digits = skipOne(text, decimalDigits) ? 1 + skipAll(text, groupedDigits) : 0;
    bool sexagesimal = false;
    while (digits != 0 && text.size() > 1 && text.front() == ':') {
        text.remove_prefix(1);
        if (const std::size_t pair = skipAll(text, decimalDigits); pair == 0 || pair > 2)
            return false;
        sexagesimal = true;
    }
    if (skipOne(text, "."))
        digits += skipAll(text, groupedDigits);
    if (digits != 0 && !sexagesimal && skipOne(text, "eE")) {
        skipOne(text, "+-");
        if (skipAll(text, decimalDigits) == 0)
            return false;
    }
    return digits != 0 && text.empty();
}

/// 2001-12-14 and what may follow it: a time with a fraction and a zone.
[[nodiscard]] bool isTimestamp(std::string_view text) noexcept {
    const auto number = [&](std::size_t least, std::size_t most) {
        const std::size_t count = skipAll(text, decimalDigits);
        return count >= least && count <= most;
    };
    if (!number(4, 4) || !skipOne(text, "-") || !number(1, 2) || !skipOne(text, "-") || !number(1, 2))
        return false;
    if (text.empty())
        return true;
    if (!skipOne(text, "Tt") && skipAll(text, " \t") == 0)
        return false;
    if (!number(1, 2) || !skipOne(text, ":") || !number(2, 2) || !skipOne(text, ":") || !number(2, 2))
        return false;
    if (skipOne(text, "."))
        skipAll(text, decimalDigits);
    skipAll(text, " \t");
    if (skipOne(text, "+-")) {
        if (!number(1, 2))
            return false;
        if (skipOne(text, ":") && !number(2, 2))
            return false;
    } else {
        skipOne(text, "Z");
    }
    return text.empty();
}

} // namespace

bool hasImplicitType(std::string_view text) noexcept {
    if (text.empty())
        return true;
    // Nearly all texts are done with by their first character.
    static constexpr std::string_view starts = "+-.0123456789<=FNOTYfnoty~";
    if (starts.find(text.front()) == std::string_view::npos)
        return false;
    return isWord(text) || isInfinityOrNaN(text) || isPrefixedInteger(text) || isDecimal(text) ||
           isTimestamp(text);
}

} // namespace specloom::jv
