#include "foundation/printable.h"

#include "foundation/ascii.h"
#include "foundation/utf8.h"

#include <algorithm> // std::min
#include <cstdint>   // std::uint32_t
#include <iterator>  // std::back_inserter

#include <fmt/format.h>
#include <utf8cpp/utf8.h>

namespace specloom {
namespace {

bool acts(char32_t codePoint) noexcept {
    return codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0) ||
           (codePoint >= 0x2028 && codePoint <= 0x202E) || (codePoint >= 0x2066 && codePoint <= 0x2069) ||
           codePoint == 0xFFFE || codePoint == 0xFFFF;
}

/// What stays as it is wherever it stands: most of nearly every text.
bool isPlain(char byte) noexcept {
    return byte >= 0x20 && byte < 0x7F && byte != '[';
}

void appendEscape(char32_t codePoint, std::string& text) {
    switch (codePoint) {
    case U'\n':
        text += "\\n";
        break;
    case U'\r':
        text += "\\r";
        break;
    case U'\t':
        text += "\\t";
        break;
    default:
        appendUnicodeEscape(codePoint, text);
    }
}

/// Whether `text` ends in "##" or in "##" and letters.
bool endsInCommandMark(std::string_view text) noexcept {
    while (!text.empty() && ascii::isLetter(text.back()))
        text.remove_suffix(1);
    return text.ends_with("##");
}

std::string printableUtf8(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    const char* plain = text.data(); // where what is not copied yet begins
    const char* const end = text.data() + text.size();
    for (const char* at = plain; at != end;) {
        if (isPlain(*at)) {
            ++at;
            continue;
        }
        const char* const begin = at;
        const auto codePoint = static_cast<char32_t>(utf8::unchecked::next(at));
        const bool isCommand =
            codePoint == U'[' &&
            endsInCommandMark({text.data(), static_cast<std::size_t>(begin - text.data())});
        if (!isCommand && !acts(codePoint))
            continue;
        appendEscape(codePoint, result.append(plain, begin));
        plain = at;
    }
    return result.append(plain, end);
}

/// The white space of Unicode that printable texts can hold.
bool isBlank(char32_t codePoint) noexcept {
    switch (codePoint) {
    case 0x20:
    case 0xA0:
    case 0x1680:
    case 0x202F:
    case 0x205F:
    case 0x3000:
    case 0xFEFF:
        return true;
    default:
        return codePoint >= 0x2000 && codePoint <= 0x200B;
    }
}

/// Of a line that is printable already.
void disarmLineStart(std::string& line) {
    auto at = line.begin();
    while (at != line.end() && isBlank(static_cast<char32_t>(utf8::unchecked::peek_next(at))))
        utf8::unchecked::next(at);
    const auto offset = static_cast<std::size_t>(at - line.begin());
    if (std::string_view(line).substr(offset).starts_with("::"))
        line.replace(offset, 1, "\\u003a");
}

} // namespace

std::string printable(std::string_view text) {
    return utf8::is_valid(text.begin(), text.end()) ? printableUtf8(text) : printableUtf8(toValidUtf8(text));
}

std::string printableAtLineStart(std::string_view text) {
    std::string line = printable(text);
    disarmLineStart(line);
    return line;
}

std::string printableLines(std::string_view text) {
    std::string result;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        result += printableAtLineStart(text.substr(begin, end - begin));
        if (end < text.size())
            result += '\n';
        begin = end + 1;
    }
    return result;
}

void appendUnicodeEscape(char32_t codePoint, std::string& text) {
    fmt::format_to(std::back_inserter(text), "\\u{:04x}", static_cast<std::uint32_t>(codePoint));
}

} // namespace specloom
