#include "foundation/case_style.h"

#include "foundation/ascii.h"
#include "foundation/strings.h"
#include "foundation/unreachable.h"

namespace specloom {
namespace {

constexpr std::string_view separators = " -/_{}";

bool isSeparator(char c) noexcept {
    return separators.find(c) != std::string_view::npos;
}

} // namespace

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
            result += result.empty() ? ascii::toLower(c) : ascii::toUpper(c);
        atRunStart = false;
    }
    return result;
}

std::string toPascalCase(std::string_view text) {
    std::string result = toCamelCase(text);
    if (!result.empty())
        result.front() = ascii::toUpper(result.front());
    return result;
}

std::string toConstCase(std::string_view text) {
    std::string result;
    bool inWord = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const char previous = i == 0 ? '\0' : text[i - 1];
        if (isSeparator(c) ||
            (ascii::isUpper(c) && ascii::isAlphanumeric(previous) && !ascii::isUpper(previous)))
            inWord = false;
        // Outside of a word only these bytes count: "$ref" has none of them and gives an empty text.
        if (!inWord && ascii::isAlphanumeric(c) &&
            (i == 0 || (ascii::isUpper(c) && !ascii::isUpper(previous)) ||
             (!ascii::isUpper(c) && isSeparator(previous)))) {
            if (!result.empty())
                result += '_';
            inWord = true;
        }
        if (inWord)
            result += ascii::toUpper(c);
    }
    return result;
}

std::string toKebabCase(std::string_view text) {
    std::string result;
    bool inWord = false;
    for (const char c : text) {
        if (!ascii::isAlphanumeric(c)) {
            inWord = false;
            continue;
        }
        if ((!inWord || ascii::isUpper(c)) && !result.empty())
            result += '-';
        result += ascii::toLower(c);
        inWord = true;
    }
    return result;
}

std::string toHeaderCase(std::string_view text) {
    std::string result = toKebabCase(text);
    for (std::size_t i = 0; i < result.size(); ++i) {
        if (i == 0 || result[i - 1] == '-')
            result[i] = ascii::toUpper(result[i]);
    }
    return result;
}

std::string toSnakeCase(std::string_view text) {
    std::string result = toKebabCase(text);
    replaceAny(result, "-", "_");
    return result;
}

} // namespace specloom
