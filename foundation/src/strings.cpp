#include "foundation/strings.h"

#include <algorithm> // std::transform, std::all_of, std::min
#include <cctype>    // std::isalnum and its family
#include <cerrno>    // errno
#include <cstdlib>   // std::strtod, std::strtoll, std::strtoull
#include <iterator>  // std::back_inserter
#include <stdexcept> // std::invalid_argument, std::out_of_range, std::runtime_error

#include <fmt/format.h>
#include <utf8cpp/utf8.h>

namespace specloom {
namespace {

constexpr std::string_view separators = " -/_{}";

// The standard functions take a byte as an unsigned value; a negative char is undefined for them.
bool isAlpha(char c) noexcept {
    return std::isalpha(static_cast<unsigned char>(c)) != 0;
}
bool isAlnum(char c) noexcept {
    return std::isalnum(static_cast<unsigned char>(c)) != 0;
}
bool isUpper(char c) noexcept {
    return std::isupper(static_cast<unsigned char>(c)) != 0;
}
bool isSpace(char c) noexcept {
    return std::isspace(static_cast<unsigned char>(c)) != 0;
}
char lower(char c) noexcept {
    return static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
}
char upper(char c) noexcept {
    return static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
}

bool isSeparator(char c) noexcept {
    return separators.find(c) != std::string_view::npos;
}

std::string transformed(std::string_view text, char (*change)(char) noexcept) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), change);
    return result;
}

} // namespace

std::string toLowerCase(std::string_view text) {
    return transformed(text, lower);
}

std::string toUpperCase(std::string_view text) {
    return transformed(text, upper);
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
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return std::string(text);
}

bool isIdentifier(std::string_view text) noexcept {
    return !text.empty() && (isAlpha(text.front()) || text.front() == '_') &&
           std::all_of(text.begin(), text.end(), [](char c) { return isAlnum(c) || c == '_'; });
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

std::string escapeHtml(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (const char c : text) {
        switch (c) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        case '{':
            result += "&lcub;";
            break;
        case '}':
            result += "&rcub;";
            break;
        default:
            result += c;
        }
    }
    return result;
}

std::string escapeHtmlDoubleQuoted(std::string_view text) {
    return escapeDoubleQuoted(escapeHtml(text));
}

namespace {

std::string escapeQuoted(std::string_view text, char quote) {
    constexpr std::string_view plain = "\\\b\f\n\r\t";
    constexpr std::string_view escapes = "\\bfnrt";
    std::string result;
    result.reserve(text.size());
    for (const char c : text) {
        const std::size_t index = plain.find(c);
        if (index != std::string_view::npos)
            (result += '\\') += escapes[index];
        else if (c == quote)
            (result += '\\') += quote;
        else
            result += c;
    }
    return result;
}

} // namespace

std::string escapeSingleQuoted(std::string_view text) {
    return escapeQuoted(text, '\'');
}

std::string escapeDoubleQuoted(std::string_view text) {
    return escapeQuoted(text, '"');
}

std::string_view caseStyleName(CaseStyle style) {
    switch (style) {
    case CaseStyle::Camel:
        return "camelCase";
    case CaseStyle::Const:
        return "CONST_CASE";
    case CaseStyle::Kebab:
        return "kebab-case";
    case CaseStyle::Pascal:
        return "PascalCase";
    case CaseStyle::Header:
        return "Header-Case";
    case CaseStyle::Snake:
        return "snake_case";
    }
    SPECLOOM_UNREACHABLE("case style");
}

std::string convertCase(std::string_view text, CaseStyle style) {
    switch (style) {
    case CaseStyle::Camel:
        return toCamelCase(text);
    case CaseStyle::Const:
        return toConstCase(text);
    case CaseStyle::Kebab:
        return toKebabCase(text);
    case CaseStyle::Pascal:
        return toPascalCase(text);
    case CaseStyle::Header:
        return toHeaderCase(text);
    case CaseStyle::Snake:
        return toSnakeCase(text);
    }
    SPECLOOM_UNREACHABLE("case style");
}

std::string toCamelCase(std::string_view text) {
    std::string result;
    bool atRunStart = true;
    for (const char c : text) {
        if (isSeparator(c)) {
            atRunStart = true;
            continue;
        }
        if (!atRunStart)
            result += c;
        else
            result += result.empty() ? lower(c) : upper(c);
        atRunStart = false;
    }
    return result;
}

std::string toPascalCase(std::string_view text) {
    std::string result = toCamelCase(text);
    if (!result.empty())
        result.front() = upper(result.front());
    return result;
}

std::string toConstCase(std::string_view text) {
    std::string result;
    bool inWord = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const char previous = i == 0 ? '\0' : text[i - 1];
        if (isSeparator(c) || (isUpper(c) && isAlnum(previous) && !isUpper(previous)))
            inWord = false;
        // Outside of a word only these bytes count: "$ref" has none of them and gives an empty text.
        if (!inWord && isAlnum(c) &&
            (i == 0 || (isUpper(c) && !isUpper(previous)) || (!isUpper(c) && isSeparator(previous)))) {
            if (!result.empty())
                result += '_';
            inWord = true;
        }
        if (inWord)
            result += upper(c);
    }
    return result;
}

std::string toKebabCase(std::string_view text) {
    std::string result;
    bool inWord = false;
    for (const char c : text) {
        if (!isAlnum(c)) {
            inWord = false;
            continue;
        }
        if ((!inWord || isUpper(c)) && !result.empty())
            result += '-';
        result += lower(c);
        inWord = true;
    }
    return result;
}

std::string toHeaderCase(std::string_view text) {
    std::string result = toKebabCase(text);
    for (std::size_t i = 0; i < result.size(); ++i) {
        if (i == 0 || result[i - 1] == '-')
            result[i] = upper(result[i]);
    }
    return result;
}

std::string toSnakeCase(std::string_view text) {
    std::string result = toKebabCase(text);
    replaceAny(result, "-", "_");
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
        throw std::invalid_argument(fmt::format("invalid {} argument", standardName));
    if (errno == ERANGE)
        throw std::out_of_range(fmt::format("{} argument out of range", standardName));
    // Compared by offset, so that a NUL byte inside of the text counts as a rest.
    if (static_cast<std::size_t>(end - begin) != text.size())
        throw std::invalid_argument(fmt::format("{}: whole string is not converted", functionName));
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

std::size_t utf8Length(std::string_view text) {
    try {
        return static_cast<std::size_t>(utf8::distance(text.begin(), text.end()));
    } catch (const utf8::not_enough_room&) {
        throw std::runtime_error("Not enough space");
    } catch (const utf8::exception&) {
        // The library tells sequences of code points that do not exist from other bad ones; here they are
        // alike.
        throw std::runtime_error("Invalid UTF-8");
    }
}

std::string toValidUtf8(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    utf8::replace_invalid(text.begin(), text.end(), std::back_inserter(result));
    return result;
}

std::string joinWith(std::string_view prefix, std::string_view text) {
    return std::string(prefix).append(text);
}

} // namespace specloom
