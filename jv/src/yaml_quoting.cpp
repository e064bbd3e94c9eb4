#include "jv/yaml_quoting.h"

#include "jv/yaml_implicit_types.h"
#include "number/number_literal.h"

#include <algorithm> // std::max
#include <cstdint>   // std::uint8_t

namespace specloom::jv {

namespace {

/// Digits, perhaps a fraction, and an exponent: what our reader takes for a number.
[[nodiscard]] bool isExponentForm(std::string_view text) noexcept {
    const number::NumberLiteral literal = number::classifyNumber(text.data(), text.data() + text.size());
    return literal.status == 0 && literal.hasExponent();
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
