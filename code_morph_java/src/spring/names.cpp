#include "code_morph_java/spring/names.h"

#include "foundation/ascii.h"
#include "foundation/case_style.h"
#include "foundation/message.h"

#include <algorithm> // std::binary_search, std::is_sorted, std::lower_bound, std::min
#include <array>     // std::to_array
#include <stdexcept> // std::invalid_argument

namespace specloom::code_morph::java {
namespace {

/// Words that no source may use as a name in all places (The Java Language Specification, Java SE 17, section
/// 3.9), "_" aside.
constexpr auto reservedWords = std::to_array<std::string_view>({
    "abstract",   "assert", "boolean",    "break",     "byte",      "case",      "catch",  "char",
    "class",      "const",  "continue",   "default",   "do",        "double",    "else",   "enum",
    "extends",    "false",  "final",      "finally",   "float",     "for",       "goto",   "if",
    "implements", "import", "instanceof", "int",       "interface", "long",      "native", "new",
    "non-sealed", "null",   "package",    "permits",   "private",   "protected", "public", "record",
    "return",     "sealed", "short",      "static",    "strictfp",  "super",     "switch", "synchronized",
    "this",       "throw",  "throws",     "transient", "true",      "try",       "void",   "volatile",
    "while",      "yield",
});
static_assert(std::is_sorted(reservedWords.begin(), reservedWords.end()));

struct Replacement {
    std::string_view word;
    std::string_view name;
};

/// Of the reserved words that get more than a 1.
constexpr auto replacements = std::to_array<Replacement>({
    {"abstract", "isAbstract"},
    {"boolean", "isBoolean"},
    {"byte", "isByte"},
    {"char", "isChar"},
    {"non-sealed", "nonSealed"},
});

constexpr auto methodsOfObject = std::to_array<std::string_view>({
    "clone",
    "equals",
    "finalize",
    "getClass",
    "hashCode",
    "notify",
    "notifyAll",
    "toString",
    "wait",
});
static_assert(std::is_sorted(methodsOfObject.begin(), methodsOfObject.end()));

template <typename Words>
bool isOneOf(const Words& words, std::string_view name) noexcept {
    return std::binary_search(words.begin(), words.end(), name);
}

bool isWordSign(char c) noexcept {
    return ascii::isAlphanumeric(c) || c == '_';
}

bool isNameOf(std::string_view name, bool (*mayBegin)(char)) noexcept {
    return !name.empty() && (mayBegin(name.front()) || name.front() == '_') &&
           std::all_of(name.begin(), name.end(), isWordSign);
}

template <typename Judge>
bool allParts(std::string_view name, Judge judge) {
    for (std::size_t begin = 0; begin <= name.size();) {
        const std::size_t end = std::min(name.find('.', begin), name.size());
        if (!judge(name.substr(begin, end - begin)))
            return false;
        begin = end + 1;
    }
    return true;
}

bool isReserved(std::string_view name) noexcept {
    return name == "_" || isOneOf(reservedWords, name);
}

/// `text` with "_" for each code point that is neither a letter, a digit, "_" nor `allowed`, cut to
/// longestName.
std::string wordOf(std::string_view text, char allowed) {
    std::string word;
    for (const char c : text) {
        const bool isContinuation = (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
        if (!isContinuation)
            word += isWordSign(c) || c == allowed ? c : '_';
        if (word.size() == longestName)
            break;
    }
    return word;
}

std::string nameOf(std::string_view text, char allowed) {
    std::string name = wordOf(text, allowed);
    if (!name.empty() && ascii::isDigit(name.front()))
        name.insert(name.begin(), '_');
    return name;
}

[[noreturn]] void refusePackageName(std::string_view name) {
    throw std::invalid_argument(formatMessage("Invalid package name: '{}'", name));
}

} // namespace

std::string_view packageOf(std::string_view qualifiedName) noexcept {
    const std::size_t dot = qualifiedName.rfind('.');
    return dot == std::string_view::npos ? std::string_view() : qualifiedName.substr(0, dot);
}

std::string_view classOf(std::string_view qualifiedName) noexcept {
    return qualifiedName.substr(qualifiedName.rfind('.') + 1); // npos + 1 is 0
}

bool isValidClassName(std::string_view name) noexcept {
    return isNameOf(name, ascii::isUpper<char>);
}

bool isValidPackageName(std::string_view name) noexcept {
    return allParts(name, [](std::string_view part) { return isNameOf(part, ascii::isLower<char>); });
}

void checkClassName(std::string_view name) {
    if (!isValidClassName(name))
        throw std::invalid_argument(formatMessage("Invalid class name: '{}'", name));
}

void checkPackageName(std::string_view name) {
    if (!isValidPackageName(name))
        refusePackageName(name);
}

void checkUsablePackageName(std::string_view name) {
    checkPackageName(name);
    if (!allParts(name, [](std::string_view part) { return !isReserved(part); }))
        refusePackageName(name);
}

std::string toIdentifier(std::string_view text) {
    std::string name = nameOf(toCamelCase(text), '$');
    if (name.empty() || name == "_")
        return "value";
    if (!isReserved(name))
        return name;
    for (const Replacement& row : replacements)
        if (row.word == name)
            return std::string(row.name);
    return name += '1';
}

std::string toMemberName(std::string_view text) {
    std::string name = toIdentifier(text);
    return isOneOf(methodsOfObject, name) ? name += '1' : name;
}

std::string toPackagePart(std::string_view text) {
    std::string part = nameOf(toCamelCase(text), '_');
    if (part.empty())
        return "root";
    return isReserved(part) ? part += '1' : part;
}

std::string toClassName(std::string_view text, std::string_view otherwise) {
    std::string name = nameOf(toPascalCase(text), '_');
    if (name.empty())
        return std::string(otherwise);
    return isReserved(name) ? name += '1' : name;
}

std::string joinClassName(std::string_view className, std::string_view text) {
    return std::string(className).append(wordOf(toPascalCase(text), '_')).substr(0, longestName);
}

} // namespace specloom::code_morph::java
