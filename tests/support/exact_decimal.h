#pragma once

#include <cstdint>     // std::int64_t
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::test_support {

/// The exact value of a decimal literal, independent of the program's own numbers: 0.`digits` times ten to
/// `exponent`. Digits have no zeros at either end, so equal values have equal members. Zero has no digits, no
/// exponent and no sign.
struct ExactDecimal {
    bool negative = false;
    std::string digits;
    std::int64_t exponent = 0;

    /// Empty when `text` is not an optional sign, digits with at most one point among them, and an optional
    /// exponent of at most 18 digits.
    [[nodiscard]] static std::optional<ExactDecimal> parse(std::string_view text);

    friend bool operator==(const ExactDecimal&, const ExactDecimal&) = default;
};

/// Whether two texts are the same number to the last digit.
[[nodiscard]] bool sameNumber(std::string_view a, std::string_view b);

} // namespace specloom::test_support
