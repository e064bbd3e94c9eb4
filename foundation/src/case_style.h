#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view

// Letters and digits are those of ASCII: a byte of 128 and above is neither, and has no case.
namespace specloom {

/// The naming conventions of generated code.
enum class CaseStyle {
    Camel = 1,
    Const = 2,
    Kebab = 3,
    Pascal = 4,
    Header = 5,
    Snake = 6,
};

/// The style's name written in the style itself, such as "camelCase"; an unreachable path for any other
/// value.
[[nodiscard]] std::string_view caseStyleName(CaseStyle style);

/// The conversion that belongs to `style`; an unreachable path for any other value.
[[nodiscard]] std::string convertCase(std::string_view text, CaseStyle style);

// Each conversion finds its words by a rule of its own, and they differ on purpose. Separators are the space
// and
// - / _ { } (the dot is none).

/// Runs between separators, each with its first byte upper-cased, the very first lower-cased: "pet_store"
/// gives "petStore", "XMLParser" gives "xMLParser".
[[nodiscard]] std::string toCamelCase(std::string_view text);

/// toCamelCase() with the first byte upper-cased.
[[nodiscard]] std::string toPascalCase(std::string_view text);

/// A word begins at an alphanumeric byte that is the first of the text or follows a separator, and at an
/// upper-case byte whose predecessor is not upper-case; it ends at a separator and before an upper-case byte
/// that follows an alphanumeric one that is not. "petStore" gives "PET_STORE", "XMLParser" gives "XMLPARSER".
[[nodiscard]] std::string toConstCase(std::string_view text);

/// Every upper-case byte and every byte behind a non-alphanumeric one begins a word: "XMLParser" gives
/// "x-m-l-parser".
[[nodiscard]] std::string toKebabCase(std::string_view text);

/// toKebabCase() with the first byte of each word upper-cased.
[[nodiscard]] std::string toHeaderCase(std::string_view text);

/// toKebabCase() with underscores.
[[nodiscard]] std::string toSnakeCase(std::string_view text);

} // namespace specloom
