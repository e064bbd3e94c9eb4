#include "regex/utf8.h"

#include <bit> // std::countl_one

namespace specloom::regex {

DecodedCharacter decodeCharacter(std::string_view text) {
    constexpr DecodedCharacter faulty{replacementCharacter, 1, false};
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80)
        return {lead, 1, true};
    const auto length = static_cast<unsigned>(std::countl_one(lead));
    if (length < 2 || length > 4 || text.size() < length)
        return faulty;
    char32_t codePoint = lead & (0x7FU >> length);
    for (unsigned i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0U) != 0x80U)
            return faulty;
        codePoint = (codePoint << 6U) | (byte & 0x3FU);
    }
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    if (codePoint < smallest[length] || codePoint > 0x10FFFF || surrogate)
        return faulty;
    return {codePoint, length, true};
}

void appendCharacter(std::string& text, char32_t codePoint) {
    const auto append = [&text](char32_t byte) { text += static_cast<char>(byte); };
    const auto appendTail = [&](unsigned bytes) {
        while (bytes-- > 0)
            append(0x80U | ((codePoint >> (6 * bytes)) & 0x3FU));
    };
    if (codePoint < 0x80) {
        append(codePoint);
    } else if (codePoint < 0x800) {
        append(0xC0U | (codePoint >> 6U));
        appendTail(1);
    } else if (codePoint < 0x10000) {
        append(0xE0U | (codePoint >> 12U));
        appendTail(2);
    } else {
        append(0xF0U | (codePoint >> 18U));
        appendTail(3);
    }
}

} // namespace specloom::regex
