#include "number/big_float_math.h"
#include "number/radix.h"

#include <algorithm> // std::clamp
#include <bit>       // std::bit_width, std::countr_zero

namespace specloom::number {
namespace {

constexpr std::uint32_t powersOfTen[] = {1,      10,      100,      1000,      10000,
                                         100000, 1000000, 10000000, 100000000, 1000000000};

/// A power of so many bits is computed exactly whatever the precision. Decimal literals need it more often
/// than not: products that are integers, or nearly so, would have to be computed with more and more bits to
/// be told apart.
constexpr std::uint64_t cheapPowerBits = 4096;

/// Whether rounding `approximation`, of which `good` bits from the top are right, to `prec` bits gives what
/// rounding the true value gives. It cannot be told when the true value may be a number of `prec` bits, or
/// lie half way between two, or on the other side of one of these: then all further bits are alike.
bool canRound(const BigFloat& approximation, std::uint64_t prec, std::uint64_t good) {
    const std::span<const Limb> limbs = approximation.limbs();
    const auto bit = [&](std::uint64_t place) {
        const auto index = static_cast<std::size_t>(place / limbBits);
        return index < limbs.size() && (limbs[limbs.size() - 1 - index] >> (31 - place % limbBits) & 1) != 0;
    };
    for (std::uint64_t place = prec + 2; place < good; ++place)
        if (bit(place) != bit(prec + 1))
            return true;
    return false;
}

} // namespace

std::int64_t BigFloatMath::pow(BigFloat& r, Status& status, std::uint32_t base, std::uint64_t exponent,
                               Precision prec, Flags flags) {
    BigFloat factor;
    if (factor.setUInt(base) != 0)
        throw std::bad_alloc();
    const std::int64_t factorShift = takeExponent(factor);
    r = factor;
    std::int64_t shift = factorShift;
    for (int bit = static_cast<int>(std::bit_width(exponent)) - 2; bit >= 0; --bit) {
        status |= mul(r, r, r, 0, prec, flags);
        shift = 2 * shift + takeExponent(r);
        if ((exponent >> bit & 1) != 0) {
            status |= mul(r, r, factor, 0, prec, flags);
            shift += factorShift + takeExponent(r);
        }
    }
    return shift;
}

Status BigFloat::powInt(BigFloat& r, std::uint32_t base, std::uint32_t exponent, Precision prec,
                        Flags flags) noexcept {
    return BigFloatMath::guarded(r, [&] {
        Status status = 0;
        std::int64_t shift = 0;
        if (exponent == 0 || base == 0) {
            status = r.setUInt(exponent == 0 ? 1 : 0);
        } else if (base == 10 && exponent < std::size(powersOfTen)) {
            status = r.setUInt(powersOfTen[exponent]);
        } else {
            shift = BigFloatMath::pow(r, status, base, exponent, prec, flags);
        }
        return status == statusOutOfMemory ? status : status | BigFloatMath::scale(r, r, shift, prec, flags);
    });
}

Status BigFloatMath::mulPowRadix(BigFloat& r, const BigFloat& a, unsigned radix, std::int64_t exponent,
                                 std::int64_t shift, Precision prec, Flags flags) {
    // The power of two in the radix costs nothing.
    const int twos = std::countr_zero(radix);
    const std::uint32_t odd = radix >> twos;
    // No finite value comes back from there, and the sums below stay within 64 bits.
    exponent = std::clamp<std::int64_t>(exponent, -(std::int64_t{1} << 40), std::int64_t{1} << 40);
    shift += twos * exponent;
    if (exponent == 0 || odd == 1 || !a.isRegular())
        return scale(r, a, shift, prec, flags);

    const auto magnitude = static_cast<std::uint64_t>(exponent < 0 ? -exponent : exponent);
    BigFloat power;
    Status status = 0;
    const bool cheap =
        magnitude <= cheapPowerBits && digitsToBits(magnitude, odd, Bound::Upper) <= cheapPowerBits;
    if (prec == exactPrecision || cheap) {
        // A quotient by the power itself is rounded correctly as it comes, and a product all the more.
        const std::int64_t powerShift = pow(power, status, odd, magnitude, exactPrecision, 0);
        if (exponent > 0)
            return mul(r, a, power, shift + powerShift, prec, flags);
        const auto bits = static_cast<Precision>(a.limbs().size() * limbBits);
        return div(r, a, power, shift - powerShift, prec == exactPrecision ? bits : prec, flags);
    }

    // Each squaring doubles the relative error and rounds once more, so that the power is off by less than
    // 2^(bit width + 1) units of the working precision, and the result by less than four times that.
    const auto width = static_cast<unsigned>(std::bit_width(magnitude));
    BigFloat product;
    std::int64_t productShift = 0;
    for (Precision extra = 16;; extra += extra / 2) {
        const Precision working = prec + extra + 1 + 2 * width;
        status = 0;
        const std::int64_t powerShift = pow(power, status, odd, magnitude, working, roundNearestEven);
        // The exponent of a stays out of it, so that nothing leaves the range before the end.
        if (exponent > 0)
            status |= mul(product, a, power, -std::int64_t{a.exponent()}, working, roundNearestEven);
        else
            status |= div(product, a, power, -std::int64_t{a.exponent()}, working, roundNearestEven);
        productShift = shift + a.exponent() + (exponent > 0 ? powerShift : -powerShift);
        if ((status & statusInexact) == 0 || canRound(product, prec, working - width - 3))
            break;
    }
    return scale(r, product, productShift, prec, flags);
}

Status BigFloat::mulPowRadix(BigFloat& r, const BigFloat& a, unsigned radix, std::int64_t exponent,
                             Precision prec, Flags flags) noexcept {
    return BigFloatMath::guarded(
        r, [&] { return BigFloatMath::mulPowRadix(r, a, radix, exponent, 0, prec, flags); });
}

} // namespace specloom::number
