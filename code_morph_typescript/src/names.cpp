#include "code_morph_typescript/names.h"

#include "foundation/strings.h"

#include <algorithm> // std::binary_search, std::is_sorted
#include <array>     // std::to_array

namespace specloom::code_morph::typescript {
namespace {

constexpr auto takenWords = std::to_array<std::string_view>({
    "__dirname", "__filename", "arguments", "await",   "break",      "case",      "catch",   "class",
    "const",     "continue",   "debugger",  "default", "delete",     "do",        "else",    "enum",
    "eval",      "export",     "exports",   "extends", "false",      "finally",   "for",     "function",
    "if",        "implements", "import",    "in",      "instanceof", "interface", "let",     "module",
    "new",       "null",       "package",   "private", "protected",  "public",    "require", "return",
    "static",    "super",      "switch",    "this",    "throw",      "true",      "try",     "typeof",
    "var",       "void",       "while",     "with",    "yield",
});
static_assert(std::is_sorted(takenWords.begin(), takenWords.end()));

} // namespace

bool isModuleBinding(std::string_view name) noexcept {
    return isIdentifier(name) && !std::binary_search(takenWords.begin(), takenWords.end(), name);
}

std::string toModuleBinding(std::string_view name) {
    return isModuleBinding(name) ? std::string(name) : joinWith("_", name);
}

} // namespace specloom::code_morph::typescript
