#include "test_support/exact_decimal.h"

#include <charconv> // std::from_chars

namespace specloom::test_support {

namespace {

/// Moves the digits at the front of `text` to `digits`; returns how many.
std::int64_t takeDigits(std::string_view& text, std::string& digits) {
    const std::size_t count = std::min(text.find_first_not_of("0123456789"), text.size());
    digits += text.substr(0, count);
    text.remove_prefix(count);
    return static_cast<std::int64_t>(count);
}

bool takeSign(std::string_view& text) {
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    return negative;
}

} // namespace

std::optional<ExactDecimal> ExactDecimal::parse(std::string_view text) {
    ExactDecimal result;
    result.negative = takeSign(text);
    result.exponent = takeDigits(text, result.digits);
    if (text.starts_with('.')) {
        text.remove_prefix(1);
        takeDigits(text, result.digits);
    }
    if (result.digits.empty())
        return std::nullopt;
    if (text.starts_with('e') || text.starts_with('E')) {
        text.remove_prefix(1);
        const bool negative = takeSign(text);
        std::string exponentDigits;
        const std::int64_t count = takeDigits(text, exponentDigits);
        std::int64_t exponent = 0;
        if (count == 0 || count > 18)
            return std::nullopt;
        std::from_chars(exponentDigits.data(), exponentDigits.data() + count, exponent);
        result.exponent += negative ? -exponent : exponent;
    }
    if (!text.empty())
        return std::nullopt;

    const std::size_t first = result.digits.find_first_not_of('0');
    if (first == std::string::npos)
        return ExactDecimal{};
    result.digits.erase(0, first);
    result.exponent -= static_cast<std::int64_t>(first);
    result.digits.erase(result.digits.find_last_not_of('0') + 1);
    return result;
}

bool sameNumber(std::string_view a, std::string_view b) {
    const auto left = ExactDecimal::parse(a);
    return left && left == ExactDecimal::parse(b);
}

} // namespace specloom::test_support
