#include "number/exact_numbers.h"

#include "foundation/keyed_hash.h"

#include <bit>         // std::countr_zero
#include <charconv>    // std::from_chars
#include <cmath>       // std::isfinite, std::isnan, std::floor
#include <cstdlib>     // std::strtod
#include <limits>      // std::numeric_limits
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::number {

namespace {

__extension__ using Wide = unsigned __int128;

/// The digits of a number without zeros at either end, and the power of ten of the last one. Zero has none.
struct Decimal {
    std::string digits;
    std::int64_t exponent = 0;
};

[[nodiscard]] Decimal decimalOf(const Number& value) {
    const std::string text = value.toString();
    Decimal decimal;
    bool behindPoint = false;
    std::size_t i = text.starts_with('-') ? 1 : 0;
    for (; i < text.size() && text[i] != 'e' && text[i] != 'E'; ++i) {
        if (text[i] == '.') {
            behindPoint = true;
            continue;
        }
        decimal.digits += text[i];
        decimal.exponent -= behindPoint;
    }
    if (i < text.size()) {
        i += text[i + 1] == '+' ? 2 : 1;
        std::int64_t exponent = 0;
        std::from_chars(text.data() + i, text.data() + text.size(), exponent);
        decimal.exponent += exponent;
    }
    while (!decimal.digits.empty() && decimal.digits.back() == '0') {
        decimal.digits.pop_back();
        ++decimal.exponent;
    }
    decimal.digits.erase(0, decimal.digits.find_first_not_of('0'));
    return decimal;
}

/// The integer that a number equals, when it has one of 64 bits: not negative as Unsigned, negative as
/// Signed.
[[nodiscard]] std::optional<Number> machineIntegerOf(const Number& value, const Decimal& decimal) {
    constexpr std::uint64_t lowest = std::uint64_t{1} << 63;
    const bool isNegative = value.compare(0) < 0;
    if (decimal.exponent < 0 || decimal.exponent > std::numeric_limits<std::uint64_t>::digits10)
        return std::nullopt;
    const std::string digits = decimal.digits + std::string(static_cast<std::size_t>(decimal.exponent), '0');
    const char* end = digits.data() + digits.size();
    std::uint64_t magnitude = 0;
    const auto read = std::from_chars(digits.data(), end, magnitude);
    if (read.ec != std::errc() || read.ptr != end || (isNegative && magnitude > lowest))
        return std::nullopt;
    return isNegative ? Number(static_cast<std::int64_t>(std::uint64_t{0} - magnitude)) : Number(magnitude);
}

[[nodiscard]] std::uint64_t timesModulo(std::uint64_t a, std::uint64_t b, std::uint64_t modulus) noexcept {
    return static_cast<std::uint64_t>(static_cast<Wide>(a) * b % modulus);
}

[[nodiscard]] std::uint64_t powerOfTenModulo(std::int64_t exponent, std::uint64_t modulus) noexcept {
    std::uint64_t result = 1 % modulus;
    std::uint64_t base = 10 % modulus;
    for (; exponent > 0; exponent /= 2) {
        if (exponent % 2 != 0)
            result = timesModulo(result, base, modulus);
        base = timesModulo(base, base, modulus);
    }
    return result;
}

[[nodiscard]] bool isMachineInteger(const Number& value) noexcept {
    return value.kind() == NumberKind::Signed || value.kind() == NumberKind::Unsigned;
}

[[nodiscard]] std::uint64_t magnitude(const Number& integer) noexcept {
    if (integer.kind() == NumberKind::Unsigned || integer.signedValue() >= 0)
        return integer.unsignedValue();
    return std::uint64_t{0} - integer.unsignedValue();
}

[[nodiscard]] bool isFinite(const Number& value) {
    if (value.kind() == NumberKind::Big)
        return !value.bigValue().isNaN() && !value.bigValue().isInfinite();
    return value.kind() != NumberKind::Float || std::isfinite(value.floatValue());
}

/// Whether a number is a float, or an integer that is one.
[[nodiscard]] bool isExactDouble(const Number& value) noexcept {
    constexpr std::uint64_t limit = std::uint64_t{1} << std::numeric_limits<double>::digits;
    if (value.kind() == NumberKind::Float)
        return std::isfinite(value.floatValue());
    return isMachineInteger(value) && magnitude(value) <= limit;
}

[[nodiscard]] BigFloat toBig(const Number& value) {
    BigFloat result;
    if (value.kind() == NumberKind::Signed)
        static_cast<void>(result.setInt(value.signedValue()));
    else if (value.kind() == NumberKind::Unsigned)
        static_cast<void>(result.setUInt(value.unsignedValue()));
    else if (value.kind() == NumberKind::Float && std::isfinite(value.floatValue()))
        static_cast<void>(
            BigFloat::fromText(result, value.toString(), nullptr, 10, bigPrecision, roundNearestEven));
    else if (value.kind() == NumberKind::Float)
        static_cast<void>(result.setDouble(value.floatValue()));
    else
        static_cast<void>(result.copy(value.bigValue()));
    return result; // not-a-number when memory ran out
}

/// The number of the simplest kind that equals a finite one, which is all numbers that do.
[[nodiscard]] Number simplestEqual(const Number& value) {
    constexpr std::int32_t mostBits = 1100; // none of a double's powers of two is beyond
    if (isMachineInteger(value))
        return value.kind() == NumberKind::Signed && value.signedValue() < 0 ? value
                                                                             : Number(magnitude(value));
    if (value.compare(0) == 0)
        return Number(std::uint64_t{0});
    if (value.kind() == NumberKind::Float) {
        if (std::floor(value.floatValue()) != value.floatValue())
            return value;
        return machineIntegerOf(value, decimalOf(value)).value_or(value);
    }
    if (value.bigValue().exponent() > mostBits || value.bigValue().exponent() < -mostBits)
        return value;
    if (value.bigValue().exponent() <= 64 && isIntegral(value))
        if (const auto integer = machineIntegerOf(value, decimalOf(value)))
            return *integer;
    const Number nearest(std::strtod(value.toString().c_str(), nullptr));
    return compareExactly(value, nearest) == 0 ? nearest : value;
}

} // namespace

std::uint64_t hashExactly(const Number& value) {
    if (!isFinite(value))
        return 0; // the reader makes none
    const Number simplest = simplestEqual(value);
    KeyedHasher hasher;
    hasher.add(static_cast<std::uint64_t>(simplest.kind()));
    if (simplest.kind() != NumberKind::Big) {
        hasher.add(simplest.unsignedValue()); // the bits, of whatever kind
        return hasher.finish();
    }
    const BigFloat& big = simplest.bigValue();
    hasher.add(big.sign());
    hasher.add(static_cast<std::uint32_t>(big.exponent()));
    bool isLow = true; // zeros below the mantissa do not count
    for (const Limb limb : big.limbs()) {
        isLow = isLow && limb == 0;
        if (!isLow)
            hasher.add(limb);
    }
    return hasher.finish();
}

std::optional<int> compareExactly(const Number& a, const Number& b) {
    if (isMachineInteger(a) && isMachineInteger(b))
        return a.compare(b);
    if (isExactDouble(a) && isExactDouble(b))
        return a.compare(b);
    const int order = BigFloat::compareFull(toBig(a), toBig(b));
    return order == 2 ? std::nullopt : std::optional<int>(order);
}

bool isIntegral(const Number& value) {
    if (isMachineInteger(value))
        return true;
    if (value.kind() == NumberKind::Float)
        return std::isfinite(value.floatValue()) && std::floor(value.floatValue()) == value.floatValue();
    const BigFloat& big = value.bigValue();
    if (big.isZero())
        return true;
    if (!big.isRegular())
        return false;
    // The value is 0.limbs times 2^exponent, so the lowest bit that is set tells.
    std::int64_t lowest = std::int64_t{big.exponent()} - static_cast<std::int64_t>(big.limbs().size()) * 32;
    for (const Limb limb : big.limbs()) {
        if (limb != 0)
            return lowest + std::countr_zero(limb) >= 0;
        lowest += 32;
    }
    return true;
}

std::optional<Divisor> Divisor::of(const Number& value) {
    if (!isFinite(value) || compareExactly(value, Number()).value_or(-1) <= 0)
        return std::nullopt;
    if (isMachineInteger(value))
        return Divisor(value.unsignedValue(), 0);
    const Decimal decimal = decimalOf(value);
    std::uint64_t digits = 0;
    const char* end = decimal.digits.data() + decimal.digits.size();
    const auto read = std::from_chars(decimal.digits.data(), end, digits);
    if (read.ec != std::errc() || read.ptr != end || digits == 0)
        return std::nullopt;
    return Divisor(digits, decimal.exponent);
}

bool Divisor::divides(const Number& value) const {
    if (isMachineInteger(value) && exponent_ == 0)
        return magnitude(value) % digits_ == 0;
    if (!isFinite(value))
        return false;
    const Decimal decimal = decimalOf(value);
    if (decimal.digits.empty())
        return true;
    // The last digit is none of a multiple of a higher power of ten.
    if (decimal.exponent < exponent_)
        return false;
    std::uint64_t remainder = 0;
    for (const char digit : decimal.digits)
        remainder = static_cast<std::uint64_t>(
            (static_cast<Wide>(remainder) * 10 + static_cast<unsigned>(digit - '0')) % digits_);
    return timesModulo(remainder, powerOfTenModulo(decimal.exponent - exponent_, digits_), digits_) == 0;
}

} // namespace specloom::number
