#include "foundation/strings.h"

#include "foundation/ascii.h"
#include "foundation/message.h"

#include <algorithm> // std::transform, std::all_of, std::min
#include <cerrno>    // errno
#include <cstdlib>   // std::strtod, std::strtoll, std::strtoull
#include <stdexcept> // std::invalid_argument, std::out_of_range
#include <vector>    // std::vector

namespace specloom {
namespace {

std::string transformed(std::string_view text, char (*change)(char) noexcept) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), change);
    return result;
}

std::string_view withoutLeadingSpace(std::string_view text) {
    while (!text.empty() && ascii::isSpace(text.front()))
        text.remove_prefix(1);
    return text;
}

std::string_view withoutTrailingSpace(std::string_view text) {
    while (!text.empty() && ascii::isSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

std::size_t leadingBlanks(std::string_view text) {
    return std::min(text.find_first_not_of(' '), text.size());
}

} // namespace

std::string toLowerCase(std::string_view text) {
    return transformed(text, ascii::toLower);
}

std::string toUpperCase(std::string_view text) {
    return transformed(text, ascii::toUpper);
}

int compareIgnoreCase(std::string_view a, std::string_view b) {
    return toLowerCase(a).compare(toLowerCase(b));
}

bool startsWith(std::string_view text, std::string_view prefix) noexcept {
    return text.starts_with(prefix);
}

bool endsWith(std::string_view text, std::string_view suffix) noexcept {
    return text.ends_with(suffix);
}

std::ptrdiff_t findFirstNotOf(std::string_view text, std::string_view characters, std::size_t from) noexcept {
    const std::size_t offset = text.find_first_not_of(characters, from);
    return offset == std::string_view::npos ? -1 : static_cast<std::ptrdiff_t>(offset);
}

void replaceAll(std::string& text, std::string_view from, std::string_view to) {
    if (from.empty())
        return;
    // A new string rather than many replacements in place: each of those would move the rest of the text.
    std::string result;
    std::size_t begin = 0;
    for (std::size_t end; (end = text.find(from, begin)) != std::string::npos; begin = end + from.size())
        result.append(text, begin, end - begin).append(to);
    result.append(text, begin);
    text = std::move(result);
}

void replaceAny(std::string& text, std::string_view characters, std::string_view to) {
    std::string result;
    for (const char c : text) {
        if (characters.find(c) == std::string_view::npos)
            result += c;
        else
            result += to;
    }
    text = std::move(result);
}

std::string trim(std::string_view text) {
    return std::string(withoutTrailingSpace(withoutLeadingSpace(text)));
}

bool isIdentifier(std::string_view text) noexcept {
    return !text.empty() && (ascii::isLetter(text.front()) || text.front() == '_') &&
           std::all_of(text.begin(), text.end(), [](char c) { return ascii::isAlphanumeric(c) || c == '_'; });
}

std::string indentLines(std::string_view text, std::size_t count) {
    std::string result;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        if (begin != 0)
            result += '\n';
        result.append(count, ' ').append(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return result;
}

std::string trimLines(std::string_view text) {
    std::vector<std::string_view> lines;
    for (std::size_t begin = 0, end = 0; end < text.size(); begin = end + 1) {
        end = std::min(text.find('\n', begin), text.size());
        lines.push_back(text.substr(begin, end - begin));
    }
    if (!lines.empty())
        if (lines.front() = withoutLeadingSpace(lines.front()); lines.front().empty())
            lines.erase(lines.begin());
    if (!lines.empty())
        if (lines.back() = withoutTrailingSpace(lines.back()); lines.back().empty())
            lines.pop_back();
    if (lines.empty())
        return {};
    const std::size_t indentation = leadingBlanks(lines.front());
    std::string result;
    for (std::string_view line : lines) {
        line.remove_prefix(std::min(indentation, leadingBlanks(line)));
        result.append(line) += '\n';
    }
    result.pop_back();
    return result;
}

namespace {

/// What the three conversions share; `convert(text, &end)` is one of the strto... functions.
template <typename Convert>
auto toNumber(const std::string& text, Convert convert, std::string_view standardName,
              std::string_view functionName) {
    const char* const begin = text.c_str();
    char* end = nullptr;
    errno = 0;
    const auto value = convert(begin, &end);
    if (end == begin)
        throw std::invalid_argument(formatMessage("invalid {} argument", standardName));
    if (errno == ERANGE)
        throw std::out_of_range(formatMessage("{} argument out of range", standardName));
    // Compared by offset, so that a NUL byte inside of the text counts as a rest.
    if (static_cast<std::size_t>(end - begin) != text.size())
        throw std::invalid_argument(formatMessage("{}: whole string is not converted", functionName));
    return value;
}

} // namespace

double toDouble(const std::string& text) {
    return toNumber(text, std::strtod, "stod", "strtod");
}

std::int64_t toInt64(const std::string& text) {
    const auto convert = [](const char* begin, char** end) { return std::strtoll(begin, end, 10); };
    return toNumber(text, convert, "stoll", "strtol");
}

std::uint64_t toUInt64(const std::string& text) {
    const auto convert = [](const char* begin, char** end) { return std::strtoull(begin, end, 10); };
    return toNumber(text, convert, "stoull", "strtoul");
}

std::string joinWith(std::string_view prefix, std::string_view text) {
    return std::string(prefix).append(text);
}

} // namespace specloom
