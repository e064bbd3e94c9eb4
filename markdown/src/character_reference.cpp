#include "markdown/character_reference.h"

#include "foundation/utf8.h"
#include "markdown/markdown_data.h"

#include <algorithm> // std::ranges::lower_bound, std::ranges::all_of
#include <charconv>  // std::from_chars
#include <cstdint>   // std::uint32_t
#include <vector>    // std::vector

namespace specloom::markdown {
namespace {

constexpr std::string_view replacementCharacter = "\uFFFD";

struct NamedCharacter {
    std::string_view name;
    std::string_view codePoints; ///< one or two in hexadecimal digits, with a blank between them
};

/// The lines of data/character_references.txt, which stand in byte-wise order: the names with a semicolon in
/// section 13.5 of the HTML standard.
std::vector<NamedCharacter> readNamedCharacters() {
    std::vector<NamedCharacter> characters;
    std::string_view rest = markdownData("character_references.txt");
    while (!rest.empty()) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        const std::size_t blank = line.find(' ');
        characters.push_back({line.substr(0, blank), line.substr(blank + 1)});
        rest.remove_prefix(line.size() + 1);
    }
    return characters;
}

/// The number at the start of `digits`, which loses it; beyond all code points when there is none or it does
/// not fit.
std::uint32_t takeNumber(std::string_view& digits, int base) {
    std::uint32_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number, base);
    digits.remove_prefix(static_cast<std::size_t>(end - digits.data()));
    return error == std::errc() ? number : 0xFFFFFFFF;
}

std::string namedCharacter(std::string_view name) {
    static const std::vector<NamedCharacter> characters = readNamedCharacters();
    const auto found = std::ranges::lower_bound(characters, name, {}, &NamedCharacter::name);
    std::string text;
    if (found == characters.end() || found->name != name)
        return text;
    for (std::string_view rest = found->codePoints; !rest.empty();) {
        appendUtf8(takeNumber(rest, 16), text);
        rest.remove_prefix(rest.empty() ? 0 : 1);
    }
    return text;
}

/// "1234" or "x12AB". CommonMark has at most seven digits, and six of the hexadecimal ones.
std::string numericCharacter(std::string_view number) {
    const bool hexadecimal = number.starts_with('x') || number.starts_with('X');
    number.remove_prefix(hexadecimal ? 1 : 0);
    if (number.empty() || number.size() > (hexadecimal ? 6u : 7u))
        return {};
    const std::uint32_t code = takeNumber(number, hexadecimal ? 16 : 10);
    std::string text;
    if (!number.empty())
        return text;
    if (code == 0 || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF))
        text = replacementCharacter;
    else
        appendUtf8(static_cast<char32_t>(code), text);
    return text;
}

} // namespace

std::string resolveCharacterReference(std::string_view written) {
    if (written.size() < 3 || written.front() != '&' || written.back() != ';')
        return {};
    const std::string_view name = written.substr(1, written.size() - 2);
    return name.starts_with('#') ? numericCharacter(name.substr(1)) : namedCharacter(name);
}

} // namespace specloom::markdown
