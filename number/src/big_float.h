#pragma once

#include "number/limbs.h"

#include <cstddef>     // std::size_t
#include <cstdint>     // std::int32_t, std::int64_t, std::uint32_t, std::uint64_t
#include <limits>      // std::numeric_limits
#include <span>        // std::span
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::number {

/// Bits of the mantissa of a result, at least 1.
using Precision = std::uint32_t;
/// No rounding at all: the result has as many bits as it needs.
inline constexpr Precision exactPrecision = 0x3fffffff;

/// Set of bits that goes with an operation: one rounding mode and the options below.
using Flags = std::uint32_t;

inline constexpr Flags roundNearestEven = 0;
inline constexpr Flags roundTowardZero = 1;
inline constexpr Flags roundDown = 2;
inline constexpr Flags roundUp = 3;
inline constexpr Flags roundNearestAway = 4;
inline constexpr Flags roundAwayFromZero = 5;
/// Either neighbour of the true result, whichever is cheaper.
inline constexpr Flags roundFaithful = 6;
inline constexpr Flags roundingMask = 7;

/// Exponents may use all 32 bits; without it they keep to -2^30..2^30, and results outside overflow or
/// underflow.
inline constexpr Flags extendedExponents = 2016;

/// Options of BigFloat::fromText.
inline constexpr Flags noHexPrefix = 65536;
inline constexpr Flags binaryAndOctalPrefixes = 131072;
inline constexpr Flags noSpecials = 262144;

/// Options of BigFloat::toText: one of the four formats, and more.
inline constexpr Flags fixedDigits = 0 * 65536;
inline constexpr Flags fractionDigits = 1 * 65536;
inline constexpr Flags shortestDigits = 2 * 65536;
inline constexpr Flags minimalDigits = 3 * 65536;
inline constexpr Flags formatMask = 3 * 65536;
inline constexpr Flags forceExponent = 1048576;
inline constexpr Flags radixPrefix = 2097152;
inline constexpr Flags scriptStyle = 4194304;

/// Set of bits that tells what happened in an operation; 0 when the result is exact.
using Status = std::uint32_t;

inline constexpr Status statusInvalid = 1;
inline constexpr Status statusDivideByZero = 2;
inline constexpr Status statusOverflow = 4;
inline constexpr Status statusUnderflow = 8;
inline constexpr Status statusInexact = 16;
/// The result was set to not-a-number.
inline constexpr Status statusOutOfMemory = 32;

/// A binary floating-point number of any precision: sign, exponent and a mantissa of 32-bit limbs, read as
/// 0.limbs * 2^exponent. A non-zero finite value is normalised: the top bit of the top limb is set. Zero,
/// infinity and not-a-number have reserved exponents and no limbs; zero and infinity keep their sign.
///
/// Operations write to a destination `r`, which may be one of the sources, round once to `prec` bits as
/// `flags` say, and return status bits. None of them throws: when memory runs out, `r` becomes not-a-number
/// and the status has statusOutOfMemory.
class BigFloat {
  public:
    static constexpr std::int32_t zeroExponent = std::numeric_limits<std::int32_t>::min();
    static constexpr std::int32_t infinityExponent = std::numeric_limits<std::int32_t>::max() - 1;
    static constexpr std::int32_t nanExponent = std::numeric_limits<std::int32_t>::max();

    /// Zero.
    BigFloat() noexcept { init(); }
    /// Throws std::bad_alloc.
    BigFloat(const BigFloat& other);
    /// Leaves `other` zero, without limbs.
    BigFloat(BigFloat&& other) noexcept;
    BigFloat& operator=(const BigFloat& other);
    BigFloat& operator=(BigFloat&& other) noexcept;
    ~BigFloat();

    /// 1 for negative, else 0.
    [[nodiscard]] std::uint32_t sign() const noexcept { return sign_; }
    [[nodiscard]] std::int32_t exponent() const noexcept { return expn_; }
    /// Least significant limb first; none for zero, infinity and not-a-number.
    [[nodiscard]] std::span<const Limb> limbs() const noexcept { return {limbs_.data(), len_}; }
    [[nodiscard]] bool isNaN() const noexcept { return expn_ == nanExponent; }
    [[nodiscard]] bool isInfinite() const noexcept { return expn_ == infinityExponent; }
    [[nodiscard]] bool isZero() const noexcept { return expn_ == zeroExponent; }
    /// Neither zero, infinity nor not-a-number.
    [[nodiscard]] bool isRegular() const noexcept { return len_ != 0; }

    /// Gives back the limbs and becomes zero.
    void clear() noexcept { setZero(0); }
    /// Becomes equal to `other`; statusOutOfMemory is the only status.
    Status copy(const BigFloat& other) noexcept;
    void setNaN() noexcept { setSpecial(0, nanExponent); }
    void setInf(std::uint32_t sign) noexcept { setSpecial(sign, infinityExponent); }
    void setZero(std::uint32_t sign) noexcept { setSpecial(sign, zeroExponent); }
    void setSign(std::uint32_t sign) noexcept { sign_ = isNaN() ? 0 : sign; }
    void swap(BigFloat& other) noexcept;

    /// Exact conversions; statusOutOfMemory is the only status.
    Status setUInt(std::uint64_t value) noexcept;
    Status setInt(std::int64_t value) noexcept;
    Status setDouble(double value) noexcept;

    /// -1, 0 or 1 as a is below, equal to or above b; 2 if either is not-a-number. Zero equals minus zero.
    [[nodiscard]] static int compareFull(const BigFloat& a, const BigFloat& b) noexcept;
    /// -1, 0 or 1 for |a| against |b|; neither may be not-a-number. Mantissas of different lengths compare as
    /// if the shorter one went on with zeros.
    [[nodiscard]] static int compareMagnitude(const BigFloat& a, const BigFloat& b) noexcept;

    static Status add(BigFloat& r, const BigFloat& a, const BigFloat& b, Precision prec,
                      Flags flags) noexcept;
    static Status sub(BigFloat& r, const BigFloat& a, const BigFloat& b, Precision prec,
                      Flags flags) noexcept;
    static Status addInt(BigFloat& r, const BigFloat& a, std::int64_t b, Precision prec,
                         Flags flags) noexcept;
    static Status mul(BigFloat& r, const BigFloat& a, const BigFloat& b, Precision prec,
                      Flags flags) noexcept;
    /// With exactPrecision the quotient gets as many bits as the longer operand has, since most have no end.
    static Status div(BigFloat& r, const BigFloat& a, const BigFloat& b, Precision prec,
                      Flags flags) noexcept;

    /// `base` to `exponent` by squaring. Each step rounds to `prec`, so that the last bits may be off by up
    /// to 2 * `exponent` units unless the status says that the result is exact.
    static Status powInt(BigFloat& r, std::uint32_t base, std::uint32_t exponent, Precision prec,
                         Flags flags) noexcept;
    /// `a` times `radix` (2 to 36) to `exponent`, correctly rounded. With exactPrecision a negative exponent
    /// divides at the precision of a's length.
    static Status mulPowRadix(BigFloat& r, const BigFloat& a, unsigned radix, std::int64_t exponent,
                              Precision prec, Flags flags) noexcept;

    /// Rounds `r` to `prec` bits.
    static Status round(BigFloat& r, Precision prec, Flags flags) noexcept;

    /// Reads the longest number at the start of `text`: an optional sign, digits with at most one ".", and an
    /// optional exponent in decimal digits behind "e" (radix up to 10: power of the radix), "p" (radix 2, 4,
    /// 8, 16: power of 2) or "@" (any radix: power of the radix). `radix` is 2 to 36, or 0 for 10 unless a
    /// prefix says otherwise: "0x" counts with radix 0 and 16 unless noHexPrefix is set, "0o" and "0b" with
    /// radix 0 and binaryAndOctalPrefixes. "nan" and "inf" in any case are read up to radix 16 unless
    /// noSpecials is set. A text that does not start with a number gives not-a-number. `consumed`, unless
    /// null, receives how many bytes belong to the number. With a finite precision the result is correctly
    /// rounded in time that does not grow with the exponent.
    static Status fromText(BigFloat& r, std::string_view text, std::size_t* consumed, unsigned radix,
                           Precision prec, Flags flags) noexcept;

    /// Appends `value` to `out` in radix 2 to 36. The format (see Flags) tells what `digits` counts:
    /// significant digits (fixedDigits), digits behind the point (fractionDigits), or bits of precision at
    /// which the text reads back to `value` (shortestDigits, minimalDigits; 0 stands for the length of the
    /// mantissa). The exponent form is chosen below 10^-6 and when there are more digits before the point
    /// than `digits`, or than that precision can need; never with fractionDigits unless forced. Throws
    /// std::bad_alloc, as appending to a string does.
    static void toText(std::string& out, const BigFloat& value, unsigned radix, std::uint32_t digits,
                       Flags flags);

  private:
    friend class BigFloatMath;

    void init() noexcept;
    void setSpecial(std::uint32_t sign, std::int32_t expn) noexcept;

    std::uint32_t sign_ = 0;
    std::int32_t expn_ = zeroExponent;
    std::uint32_t len_ = 0;
    LimbBlock limbs_;
};

} // namespace specloom::number
