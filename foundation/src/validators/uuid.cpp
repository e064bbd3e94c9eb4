#include "foundation/ascii.h"
#include "foundation/validators/validators.h"

#include <cstddef>     // std::size_t
#include <string_view> // std::string_view

namespace specloom {

bool isUUID(std::string_view text) noexcept {
    constexpr std::string_view form = "xxxxxxxx-xxxx-xxxx-vxxx-xxxxxxxxxxxx";
    if (text.size() != form.size())
        return false;
    for (std::size_t at = 0; at < form.size(); ++at) {
        const char byte = text[at];
        const bool lowerHex = ascii::isHexDigit(byte) && !ascii::isUpper(byte);
        if (form[at] == '-' ? byte != '-' : !lowerHex)
            return false;
        if (form[at] == 'v' && std::string_view("089ab").find(byte) == std::string_view::npos)
            return false;
    }
    return true;
}

} // namespace specloom
