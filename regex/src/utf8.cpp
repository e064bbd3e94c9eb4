#include "regex/utf8.h"

#include <algorithm> // std::min

#include <utf8cpp/utf8.h>

namespace specloom::regex {

DecodedCharacter decodeCharacter(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80)
        return {lead, 1, true};
    // No character is longer than four bytes. What does not throw is asked: texts may be all faults.
    const char* const begin = text.data();
    const char* const end = begin + std::min<std::size_t>(text.size(), 4);
    if (utf8::find_invalid(begin, end) == begin)
        return {replacementCharacter, 1, false};
    const char* next = begin;
    const auto codePoint = static_cast<char32_t>(utf8::unchecked::next(next));
    return {codePoint, static_cast<unsigned>(next - begin), true};
}

} // namespace specloom::regex
