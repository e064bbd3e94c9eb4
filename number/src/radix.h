#pragma once

#include "number/limbs.h"

#include <cstdint> // std::int64_t, std::uint8_t, std::uint64_t
#include <span>    // std::span
#include <string>  // std::string

namespace specloom::number {

inline constexpr unsigned smallestRadix = 2;

/// Which side of the true value an estimate stays on.
enum class Bound { Lower, Upper };

/// How many digits of `radix` a limb holds, whatever they are.
[[nodiscard]] unsigned digitsPerLimb(unsigned radix) noexcept;

/// `radix` to the power digitsPerLimb(radix); for radixes that are no powers of two.
[[nodiscard]] Limb limbRadix(unsigned radix) noexcept;

/// Bits of a digit of a radix that is a power of two; 0 for the others.
[[nodiscard]] unsigned bitsPerDigit(unsigned radix) noexcept;

/// `digits` times log2(radix), rounded to the side that `bound` says; at most 2^32 digits.
[[nodiscard]] std::uint64_t digitsToBits(std::uint64_t digits, unsigned radix, Bound bound) noexcept;

/// `bits` divided by log2(radix), rounded to the side that `bound` says; at most 2^32 bits to either side of
/// 0.
[[nodiscard]] std::int64_t bitsToDigits(std::int64_t bits, unsigned radix, Bound bound) noexcept;

/// The value of a digit character up to "z" or "Z"; 255 for any other.
[[nodiscard]] std::uint8_t digitValue(char c) noexcept;

/// The natural number with these digit values, most significant first. Throws std::bad_alloc.
[[nodiscard]] Natural digitsToNatural(std::span<const std::uint8_t> digits, unsigned radix);

/// Appends the digits of `value`, "0" to "9" and "a" to "z", without zeros in front; nothing for zero.
/// Throws std::bad_alloc.
void appendDigits(std::string& out, Natural value, unsigned radix);

} // namespace specloom::number
