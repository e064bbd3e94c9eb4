#include "foundation/report_text.h"

#include <algorithm> // std::count_if
#include <iterator>  // std::back_inserter

#include <fmt/format.h>

namespace specloom {
namespace {

void appendEscape(std::string& result, unsigned char c) {
    switch (c) {
    case '\n':
        result += "\\n";
        break;
    case '\r':
        result += "\\r";
        break;
    case '\t':
        result += "\\t";
        break;
    default:
        fmt::format_to(std::back_inserter(result), "\\u{:04x}", c);
    }
}

} // namespace

std::string singleLine(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto c = static_cast<unsigned char>(text[at]);
        const auto next = at + 1 < text.size() ? static_cast<unsigned char>(text[at + 1]) : 0u;
        if (c < 0x20 || c == 0x7F)
            appendEscape(result, c);
        else if (c == 0xC2 && next >= 0x80 && next < 0xA0) // U+0080 to U+009F in UTF-8
            appendEscape(result, static_cast<unsigned char>(text[++at]));
        else
            result += text[at];
    }
    return result;
}

std::size_t columnsOf(std::string_view text) noexcept {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

} // namespace specloom
