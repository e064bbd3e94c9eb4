#include "foundation/ascii.h"
#include "foundation/validators/validators.h"

#include <cstddef>     // std::size_t
#include <string_view> // std::string_view

namespace specloom {

bool isHostname(std::string_view text) noexcept {
    constexpr std::size_t longestLabel = 63; // RFC 1035, section 2.3.4
    std::size_t length = 0;
    for (const char byte : text) {
        if (byte == '.') {
            if (length == 0)
                return false;
            length = 0;
            continue;
        }
        const bool fits = ascii::isLetter(byte) || (length > 0 && (ascii::isDigit(byte) || byte == '-'));
        if (!fits || ++length > longestLabel)
            return false;
    }
    return length > 0 && text.back() != '-';
}

} // namespace specloom
