#include "foundation/ascii.h"
#include "foundation/validators/validators.h"

#include <cstddef>     // std::size_t
#include <string_view> // std::string_view

namespace specloom {
namespace {

/// Whether `text` is a number of 0 to 255 without leading zeros.
bool isOctet(std::string_view text) {
    if (text.empty() || text.size() > 3 || (text.size() > 1 && text.front() == '0'))
        return false;
    int value = 0;
    for (const char byte : text) {
        if (!ascii::isDigit(byte))
            return false;
        value = value * 10 + (byte - '0');
    }
    return value <= 255;
}

/// The number of hexadecimal digits at the start of `text`, at most 5: one more than a group may have.
std::size_t countHexDigits(std::string_view text) {
    std::size_t count = 0;
    while (count < text.size() && count < 5 && ascii::isHexDigit(text[count]))
        ++count;
    return count;
}

} // namespace

bool isIPv4(std::string_view text) noexcept {
    for (int octet = 0; octet < 3; ++octet) {
        const std::size_t dot = text.find('.');
        if (dot == std::string_view::npos || !isOctet(text.substr(0, dot)))
            return false;
        text.remove_prefix(dot + 1);
    }
    return isOctet(text);
}

bool isIPv6(std::string_view text) noexcept {
    std::size_t groups = 0;
    bool gap = text.substr(0, 2) == "::";
    std::size_t at = gap ? 2 : 0;
    if (gap && at == text.size())
        return true;
    while (true) {
        const std::size_t digits = countHexDigits(text.substr(at));
        if (digits == 0 || digits > 4)
            return false;
        if (at + digits < text.size() && text[at + digits] == '.')
            return (groups == 6 || gap) && isIPv4(text.substr(at));
        ++groups;
        at += digits;
        if (at == text.size())
            return groups == 8 || (groups < 8 && gap);
        if (text[at] != ':')
            return false;
        ++at;
        if (at < text.size() && text[at] == ':') {
            if (gap)
                return false;
            gap = true;
            ++at;
            if (at == text.size())
                return groups <= 8;
        }
    }
}

} // namespace specloom
