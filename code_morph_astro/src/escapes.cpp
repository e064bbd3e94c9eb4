#include "code_morph_astro/escapes.h"

#include "foundation/escapes.h"
#include "foundation/printable.h"
#include "foundation/strings.h"
#include "foundation/utf8.h"

#include <array>   // std::array
#include <cstddef> // std::size_t

namespace specloom::code_morph::astro {
namespace {

constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD";

bool isWhiteSpaceOfHtml(char c) noexcept {
    return c == '\t' || c == '\n' || c == '\r' || c == '\f';
}

/// For each byte whether it stands for itself in a literal, wherever that is. The compiler of Astro knows
/// where literals end, so that braces and back-quotes in them are no matter.
constexpr std::array<bool, 256> plainBytes = [] {
    std::array<bool, 256> plain{};
    for (std::size_t byte = 0x20; byte < plain.size(); ++byte)
        plain[byte] = byte != 0x7F;
    for (const char special : std::string_view("\"\\<\xE2"))
        plain[static_cast<unsigned char>(special)] = false;
    return plain;
}();

/// Whether what follows "<" could end or begin a script or a comment for something that reads the file, or
/// what it becomes, as HTML.
bool beginsScriptOrComment(std::string_view behind) noexcept {
    if (behind.starts_with('/'))
        behind.remove_prefix(1);
    return behind.starts_with('!') || compareIgnoreCase(behind.substr(0, 6), "script") == 0;
}

/// Writes the byte at `at` of a text, which is none of plainBytes. Returns how many bytes that took.
std::size_t appendSpecial(std::string_view text, std::size_t at, std::string& out) {
    switch (text[at]) {
    case '"':
        out += "\\\"";
        return 1;
    case '\\':
        out += "\\\\";
        return 1;
    case '\n':
        out += "\\n";
        return 1;
    case '\r':
        out += "\\r";
        return 1;
    case '\t':
        out += "\\t";
        return 1;
    case '<':
        if (beginsScriptOrComment(text.substr(at + 1)))
            break;
        out += '<';
        return 1;
    case '\xE2': {
        const std::string_view separator = text.substr(at, 3);
        if (separator == "\u2028" || separator == "\u2029") {
            appendUnicodeEscape(separator == "\u2028" ? U'\u2028' : U'\u2029', out);
            return 3;
        }
        out += text[at];
        return 1;
    }
    default:
        break;
    }
    appendUnicodeEscape(static_cast<unsigned char>(text[at]), out);
    return 1;
}

void appendLiteralOfUtf8(std::string_view text, std::string& out) {
    out += '"';
    for (std::size_t at = 0; at < text.size();) {
        std::size_t end = at;
        while (end < text.size() && plainBytes[static_cast<unsigned char>(text[end])])
            ++end;
        out += text.substr(at, end - at);
        at = end < text.size() ? end + appendSpecial(text, end, out) : end;
    }
    out += '"';
}

} // namespace

std::string toAstroText(std::string_view text) {
    std::string result;
    for (const char c : escapeHtml(trimLines(toValidUtf8(text)))) {
        const bool isControl = static_cast<unsigned char>(c) < 0x20 || c == '\x7F';
        if (isControl && !isWhiteSpaceOfHtml(c))
            result += replacementCharacter;
        else
            result += c;
    }
    return result;
}

std::string toAstroAttribute(std::string_view text) {
    std::string result = "{";
    appendAstroLiteral(text, result);
    return result += '}';
}

std::string toAstroLiteral(std::string_view text) {
    std::string result;
    appendAstroLiteral(text, result);
    return result;
}

void appendAstroLiteral(std::string_view text, std::string& out) {
    // Hardly any text is not UTF-8, and the check is cheaper than the copy.
    appendLiteralOfUtf8(isValidUtf8(text) ? text : std::string_view(toValidUtf8(text)), out);
}

} // namespace specloom::code_morph::astro
