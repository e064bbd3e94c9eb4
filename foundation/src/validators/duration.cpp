#include "foundation/ascii.h"
#include "foundation/validators/validators.h"

#include <cstddef>     // std::size_t
#include <string_view> // std::string_view

namespace specloom {
namespace {

/// Whether `text` is one or more parts, each of digits and a unit, with units in the order of `units`.
bool isPartList(std::string_view text, std::string_view units) {
    std::size_t at = 0;
    std::size_t nextUnit = 0;
    do {
        const std::size_t digits = at;
        while (at < text.size() && ascii::isDigit(text[at]))
            ++at;
        if (at == digits || at == text.size())
            return false;
        const std::size_t unit = units.find(text[at], nextUnit);
        if (unit == std::string_view::npos)
            return false;
        nextUnit = unit + 1;
        ++at;
    } while (at < text.size());
    return true;
}

} // namespace

bool isDuration(std::string_view text) noexcept {
    if (text.empty() || text.front() != 'P')
        return false;
    text.remove_prefix(1);
    const std::size_t t = text.find('T');
    if (t == std::string_view::npos)
        return isPartList(text, "YMD") || isPartList(text, "W");
    return (t == 0 || isPartList(text.substr(0, t), "YMD")) && isPartList(text.substr(t + 1), "HMS");
}

} // namespace specloom
