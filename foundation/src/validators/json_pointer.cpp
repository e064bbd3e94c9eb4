#include "foundation/ascii.h"
#include "foundation/validators/validators.h"

#include <cstddef>     // std::size_t
#include <string_view> // std::string_view

namespace specloom {
namespace {

/// The number of digits at the start of `text`.
std::size_t countDigits(std::string_view text) {
    std::size_t count = 0;
    while (count < text.size() && ascii::isDigit(text[count]))
        ++count;
    return count;
}

} // namespace

bool isJSONPointer(std::string_view text) noexcept {
    if (!text.empty() && text.front() != '/')
        return false;
    for (std::size_t at = text.find('~'); at != std::string_view::npos; at = text.find('~', at + 1)) {
        const std::string_view escaped = text.substr(at + 1, 1);
        if (escaped != "0" && escaped != "1")
            return false;
    }
    return true;
}

bool isRelativeJSONPointer(std::string_view text) noexcept {
    const std::size_t steps = countDigits(text);
    if (steps == 0 || (steps > 1 && text.front() == '0'))
        return false;
    text.remove_prefix(steps);
    if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
        text.remove_prefix(1);
        const std::size_t adjustment = countDigits(text);
        if (adjustment < 2 || text.front() == '0')
            return false;
        text.remove_prefix(adjustment);
    }
    return text == "#" || isJSONPointer(text);
}

} // namespace specloom
