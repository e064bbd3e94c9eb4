#pragma once

#include "number/number.h"

#include <cstdint>  // std::int64_t, std::uint64_t
#include <optional> // std::optional

/// Decisions on numbers of all kinds by their exact values; number::Number itself compares integers and
/// floats as floats, and knows no multiples of big numbers. Beside a number of another kind, a float stands
/// for the shortest decimal digits that mean it: 0.1 is a tenth.
namespace specloom::jv::schema {

/// -1, 0 or 1 as `a` is below, equal to or above `b`; empty when one of them is not-a-number.
[[nodiscard]] std::optional<int> compareExactly(const number::Number& a, const number::Number& b);

/// Whether there is no fraction: 1.0 has none. Infinity is no integer.
[[nodiscard]] bool isIntegral(const number::Number& value);

/// A number of which multiples are asked for.
class Divisor {
  public:
    /// Empty for a number that is not above 0, or whose digits without the zeros at both ends are more than
    /// 64 bits hold.
    [[nodiscard]] static std::optional<Divisor> of(const number::Number& value);

    /// Whether `value`, as its shortest decimal digits have it, is an integral multiple.
    [[nodiscard]] bool divides(const number::Number& value) const;

  private:
    Divisor(std::uint64_t digits, std::int64_t exponent) noexcept : digits_(digits), exponent_(exponent) {}

    std::uint64_t digits_; ///< times ten to exponent_
    std::int64_t exponent_;
};

} // namespace specloom::jv::schema
