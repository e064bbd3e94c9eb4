#include "jv/json_unescape.h"

#include "foundation/unreachable.h"
#include "foundation/utf8.h"

#include <charconv> // std::from_chars
#include <cstdint>  // std::uint32_t

namespace specloom::jv {

namespace {

/// The code unit of the four digits at the front of `digits`.
[[nodiscard]] std::uint32_t codeUnit(std::string_view digits) {
    std::uint32_t unit = 0;
    std::from_chars(digits.data(), digits.data() + 4, unit, 16);
    return unit;
}

/// `rest` starts behind a "\u"; returns how many of its bytes were used.
[[nodiscard]] std::size_t appendUnicodeEscape(std::string_view rest, std::string& out) {
    const std::uint32_t unit = codeUnit(rest);
    const bool high = unit >= 0xd800 && unit < 0xdc00;
    const bool low = unit >= 0xdc00 && unit < 0xe000;
    if (high && rest.size() >= 10 && rest.substr(4, 2) == "\\u") {
        const std::uint32_t second = codeUnit(rest.substr(6));
        if (second >= 0xdc00 && second < 0xe000) {
            appendUtf8(static_cast<char32_t>(0x10000 + ((unit - 0xd800) << 10) + (second - 0xdc00)), out);
            return 10;
        }
    }
    // No text can hold half a pair, and an ill-formed one would spoil every output format.
    if (high || low)
        out += '?';
    else
        appendUtf8(static_cast<char32_t>(unit), out);
    return 4;
}

} // namespace

void unescapeJSON(std::string_view text, std::string& out) {
    for (;;) {
        const std::size_t plain = text.find('\\');
        out += text.substr(0, plain);
        if (plain == std::string_view::npos)
            return;
        const char escape = text[plain + 1];
        text.remove_prefix(plain + 2);
        switch (escape) {
        case '"':
        case '\\':
        case '/':
            out += escape;
            break;
        case 'b':
            out += '\b';
            break;
        case 'f':
            out += '\f';
            break;
        case 'n':
            out += '\n';
            break;
        case 'r':
            out += '\r';
            break;
        case 't':
            out += '\t';
            break;
        case 'u':
            text.remove_prefix(appendUnicodeEscape(text, out));
            break;
        default:
            SPECLOOM_UNREACHABLE("this should never happen");
        }
    }
}

} // namespace specloom::jv
