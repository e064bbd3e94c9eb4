#include "code_morph_java/string_literal.h"

#include "foundation/escapes.h"
#include "foundation/printable.h"
#include "foundation/utf8.h"

#include <cstddef> // std::size_t

namespace specloom::code_morph::java {
namespace {

/// The most bytes of a string in a class file (The Java Virtual Machine Specification, section 4.4.7).
constexpr std::size_t longestConstant = 65535;

unsigned byteAt(std::string_view text, std::size_t at) noexcept {
    return at < text.size() ? static_cast<unsigned char>(text[at]) : 0U;
}

bool isContinuation(unsigned byte) noexcept {
    return (byte & 0xC0U) == 0x80U;
}

/// Whether the sequence of a surrogate stands there, which is well-formed and yet no UTF-8 (RFC 3629, section
/// 3): such texts come from JSON that was written from UTF-16.
bool isSurrogateAt(std::string_view text, std::size_t at) noexcept {
    return byteAt(text, at) == 0xED && byteAt(text, at + 1) >= 0xA0 && isContinuation(byteAt(text, at + 1)) &&
           isContinuation(byteAt(text, at + 2));
}

char32_t surrogateAt(std::string_view text, std::size_t at) noexcept {
    return 0xD000U | (byteAt(text, at + 1) & 0x3FU) << 6U | (byteAt(text, at + 2) & 0x3FU);
}

/// The literal of UTF-8 without its quotes. Line feeds and carriage returns, which an escape by number would
/// put into the source before it is read, have escapes of their own in Java as in JSON.
std::string escapedUtf8(std::string_view text) {
    std::string escaped = toJsonLiteral(text);
    return printable(std::string_view(escaped).substr(1, escaped.size() - 2));
}

} // namespace

std::string toStringLiteral(std::string_view text) {
    std::string literal = "\"";
    std::size_t begin = 0;
    for (std::size_t at = text.find('\xED'); at != std::string_view::npos; at = text.find('\xED', at + 1))
        if (isSurrogateAt(text, at)) {
            literal += escapedUtf8(text.substr(begin, at - begin));
            appendUnicodeEscape(surrogateAt(text, at), literal);
            begin = at + 3;
        }
    return literal.append(escapedUtf8(text.substr(begin))) += '"';
}

bool fitsConstant(std::string_view text) {
    if (text.size() <= longestConstant / 3) // no byte becomes more than three
        return true;
    std::size_t length = 0;
    for (const char c : toValidUtf8(text)) {
        const auto byte = static_cast<unsigned char>(c);
        length += byte == 0 ? 2 : byte >= 0xF0 ? 3 : 1; // NUL is two bytes, what is beyond U+FFFF six
    }
    return length <= longestConstant;
}

} // namespace specloom::code_morph::java
