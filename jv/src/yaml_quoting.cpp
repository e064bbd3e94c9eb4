#include "jv/yaml_quoting.h"

#include "jv/yaml_implicit_types.h"

#include <algorithm> // std::max
#include <cstdint>   // std::uint8_t

namespace specloom::jv {

namespace {

/// Drops the digits at the front; false when there is none.
[[nodiscard]] bool skipDigits(std::string_view& text) noexcept {
    const std::string_view all = text;
    while (!text.empty() && text.front() >= '0' && text.front() <= '9')
        text.remove_prefix(1);
    return text.size() != all.size();
}

/// Drops an optional sign, digits, and optionally "." and digits; false when they are not there.
[[nodiscard]] bool skipDecimal(std::string_view& text) noexcept {
    if (text.starts_with('+') || text.starts_with('-'))
        text.remove_prefix(1);
    if (!skipDigits(text))
        return false;
    if (!text.starts_with('.'))
        return true;
    text.remove_prefix(1);
    return skipDigits(text);
}

[[nodiscard]] bool isExponentForm(std::string_view text) noexcept {
    if (!skipDecimal(text) || !(text.starts_with('e') || text.starts_with('E')))
        return false;
    text.remove_prefix(1);
    if (text.starts_with('+') || text.starts_with('-'))
        text.remove_prefix(1);
    return skipDigits(text) && text.empty();
}

} // namespace

bool needsDoubleQuotes(std::string_view text) noexcept {
    if (text.empty() || text.front() == '#' || text.front() == '*')
        return true;
    return hasImplicitType(text) && !isExponentForm(text);
}

bool hasForbiddenCodePoint(std::string_view text) noexcept {
    // Surrogates start with 0xed, what is too large with 0xf4 and above. Nearly no text has a byte like that,
    // and the largest byte is found faster than the first large one.
    std::uint8_t largest = 0;
    for (const char c : text)
        largest = std::max(largest, static_cast<std::uint8_t>(c));
    if (largest < 0xed)
        return false;
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        const auto lead = static_cast<std::uint8_t>(text[i]);
        const auto next = static_cast<std::uint8_t>(text[i + 1]);
        if ((lead == 0xed && next >= 0xa0) || (lead == 0xf4 && next >= 0x90) || lead > 0xf4)
            return true;
    }
    return false;
}

} // namespace specloom::jv
