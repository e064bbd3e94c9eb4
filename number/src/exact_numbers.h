#pragma once

#include "number/number.h"

#include <cstdint>  // std::int64_t, std::uint64_t
#include <optional> // std::optional

/// Decisions on numbers of all kinds by their exact values; Number itself compares integers and floats as
/// floats, knows no multiples of big numbers, and hashes all fractions of one integer alike. Beside a number
/// of another kind, a float stands for the shortest decimal digits that mean it: 0.1 is a tenth.
namespace specloom::number {

/// -1, 0 or 1 as `a` is below, equal to or above `b`; empty when one of them is not-a-number.
[[nodiscard]] std::optional<int> compareExactly(const Number& a, const Number& b);

/// Equal for numbers that compareExactly() finds equal, whatever their kinds, and different for nearly all
/// others. Under the key of keyedHash().
[[nodiscard]] std::uint64_t hashExactly(const Number& value);

/// Whether there is no fraction: 1.0 has none. Infinity is no integer.
[[nodiscard]] bool isIntegral(const Number& value);

/// A number of which multiples are asked for.
class Divisor {
  public:
    /// Empty for a number that is not above 0, or whose digits without the zeros at both ends are more than
    /// 64 bits hold.
    [[nodiscard]] static std::optional<Divisor> of(const Number& value);

    /// Whether `value`, as its shortest decimal digits have it, is an integral multiple.
    [[nodiscard]] bool divides(const Number& value) const;

  private:
    Divisor(std::uint64_t digits, std::int64_t exponent) noexcept : digits_(digits), exponent_(exponent) {}

    std::uint64_t digits_; ///< times ten to exponent_
    std::int64_t exponent_;
};

} // namespace specloom::number
