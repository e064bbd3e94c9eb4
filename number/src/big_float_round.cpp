#include "number/big_float_math.h"

#include <algorithm> // std::fill_n, std::copy
#include <bit>       // std::countl_zero

namespace specloom::number {
namespace {

constexpr Limb topBit = 0x80000000;

constexpr std::int32_t largestExponent = 1 << 30;
constexpr std::int32_t smallestExponent = -(1 << 30);

bool extended(Flags flags) {
    return (flags & extendedExponents) == extendedExponents;
}

/// What rounding leaves out: the first bit and whether there is anything below it.
struct Discarded {
    bool half;
    bool below;
};

bool roundsUp(Flags mode, std::uint32_t sign, bool odd, Discarded discarded) {
    const bool inexact = discarded.half || discarded.below;
    switch (mode) {
    case roundNearestEven:
        return discarded.half && (discarded.below || odd);
    case roundDown:
        return sign != 0 && inexact;
    case roundUp:
        return sign == 0 && inexact;
    case roundNearestAway:
    case roundFaithful:
        return discarded.half;
    case roundAwayFromZero:
        return inexact;
    default:
        return false;
    }
}

/// Rounds the mantissa, whose top bit is set, to `prec` bits.
Status roundMantissa(Unrounded& value, Precision prec, Flags mode) {
    const std::uint64_t bits = std::uint64_t{value.length} * limbBits;
    if (prec == exactPrecision || bits <= prec)
        return 0;
    LimbBlock& limbs = value.limbs;
    const std::uint64_t cut = bits - prec;
    const auto index = static_cast<std::size_t>(cut / limbBits);
    const Limb unit = Limb{1} << cut % limbBits;
    const auto below = static_cast<std::size_t>((cut - 1) / limbBits);
    const Limb half = Limb{1} << (cut - 1) % limbBits;
    const Discarded discarded{(limbs[below] & half) != 0,
                              (limbs[below] & (half - 1)) != 0 || anyBit(limbs.data(), below)};
    const bool up = roundsUp(mode, value.sign, (limbs[index] & unit) != 0, discarded);
    std::fill_n(limbs.data(), index, 0);
    limbs[index] &= ~(unit - 1);
    if (up && addInPlace(limbs.data() + index, value.length - index, &unit, 1) != 0) {
        limbs[value.length - 1] = topBit;
        ++value.exponent;
    }
    return discarded.half || discarded.below ? statusInexact : 0;
}

void removeLowZeros(Unrounded& value) {
    std::size_t zeros = 0;
    while (value.limbs[zeros] == 0)
        ++zeros;
    if (zeros != 0)
        std::copy(value.limbs.data() + zeros, value.limbs.data() + value.length, value.limbs.data());
    value.length -= zeros;
    value.limbs.resize(value.length);
}

bool isPowerOfTwo(const Unrounded& value) {
    return value.limbs[value.length - 1] == topBit && !anyBit(value.limbs.data(), value.length - 1);
}

/// The largest finite value of `prec` bits.
Unrounded largest(std::uint32_t sign, std::int32_t exponent, Precision prec) {
    Unrounded value;
    value.sign = sign;
    value.exponent = exponent;
    value.length = (std::size_t{prec} + limbBits - 1) / limbBits;
    value.limbs.resize(value.length);
    std::fill_n(value.limbs.data(), value.length, ~Limb{0});
    value.limbs[0] <<= value.length * limbBits - prec;
    return value;
}

Unrounded smallest(std::uint32_t sign, std::int32_t exponent) {
    Unrounded value;
    value.sign = sign;
    value.exponent = exponent;
    value.length = 1;
    value.limbs.resize(1);
    value.limbs[0] = topBit;
    return value;
}

bool overflowsToInfinity(Flags mode, std::uint32_t sign) {
    return mode == roundDown ? sign != 0 : mode == roundUp ? sign == 0 : mode != roundTowardZero;
}

/// For a value below the smallest one; the part kept and left out are the smallest value and what is beneath.
bool underflowsToSmallest(const Unrounded& value, std::int32_t smallestPossible, Flags mode) {
    const bool atLeastHalf = value.exponent == smallestPossible - 1;
    const bool exactlyHalf = atLeastHalf && isPowerOfTwo(value);
    return roundsUp(mode, value.sign, false, {atLeastHalf, !exactlyHalf});
}

} // namespace

Status BigFloatMath::normalizeAndRound(BigFloat& r, Unrounded value, Precision prec, Flags flags) {
    const Flags mode = flags & roundingMask;
    while (value.length != 0 && value.limbs[value.length - 1] == 0) {
        --value.length;
        value.exponent -= limbBits;
    }
    if (value.length == 0) {
        r.setZero(value.sign);
        return 0;
    }
    if (const int shift = std::countl_zero(value.limbs[value.length - 1]); shift != 0) {
        shiftLeft(value.limbs.data(), value.limbs.data(), value.length, static_cast<unsigned>(shift));
        value.exponent -= shift;
    }
    const std::int32_t low = extended(flags) ? BigFloat::zeroExponent + 1 : smallestExponent;
    const std::int32_t high = extended(flags) ? BigFloat::infinityExponent - 1 : largestExponent;
    Status status = 0;
    if (value.exponent < low) {
        // Decided before rounding, which must not make a half out of what is only near to it.
        status = statusUnderflow | statusInexact;
        if (!underflowsToSmallest(value, low, mode)) {
            r.setZero(value.sign);
            return status;
        }
        value = smallest(value.sign, low);
    } else {
        status = roundMantissa(value, prec, mode);
        if (value.exponent > high) {
            status = statusOverflow | statusInexact;
            // Without a precision there is no largest value.
            if (prec == exactPrecision || overflowsToInfinity(mode, value.sign)) {
                r.setInf(value.sign);
                return status;
            }
            value = largest(value.sign, high, prec);
        }
    }
    removeLowZeros(value);
    r.sign_ = value.sign;
    r.expn_ = static_cast<std::int32_t>(value.exponent);
    r.len_ = static_cast<std::uint32_t>(value.length);
    r.limbs_ = std::move(value.limbs);
    return status;
}

Status BigFloatMath::scale(BigFloat& r, const BigFloat& a, std::int64_t shift, Precision prec, Flags flags) {
    if (!a.isRegular()) {
        r = a;
        return 0;
    }
    Unrounded value;
    value.sign = a.sign_;
    value.exponent = a.expn_ + shift;
    value.length = a.len_;
    value.limbs.resize(value.length);
    std::copy(a.limbs_.data(), a.limbs_.data() + a.len_, value.limbs.data());
    return normalizeAndRound(r, std::move(value), prec, flags);
}

Status BigFloat::round(BigFloat& r, Precision prec, Flags flags) noexcept {
    return BigFloatMath::guarded(r, [&] { return BigFloatMath::scale(r, r, 0, prec, flags); });
}

Status BigFloatMath::fromNatural(BigFloat& r, std::uint32_t sign, Natural value, std::int64_t shift,
                                 Precision prec, Flags flags) {
    Unrounded unrounded;
    unrounded.sign = sign;
    unrounded.exponent = static_cast<std::int64_t>(value.length) * limbBits + shift;
    unrounded.limbs = std::move(value.limbs);
    unrounded.length = value.length;
    return normalizeAndRound(r, std::move(unrounded), prec, flags);
}

Natural BigFloatMath::toNatural(const BigFloat& value, bool sticky, Flags flags) {
    Natural result;
    if (!value.isRegular())
        return result;
    const Flags mode = flags & roundingMask;
    if (value.expn_ <= 0) {
        const bool half = value.expn_ == 0;
        const bool exactlyHalf = half && value.len_ == 1 && value.limbs_[0] == topBit && !sticky;
        if (roundsUp(mode, value.sign_, false, {half, !exactlyHalf})) {
            result.limbs.resize(1);
            result.limbs[0] = 1;
            result.length = 1;
        }
        return result;
    }
    // The limbs reach at least to the binary point, and one limb behind them holds the sticky bit.
    const std::size_t toPoint = (static_cast<std::size_t>(value.expn_) + limbBits - 1) / limbBits;
    Unrounded integer;
    integer.sign = value.sign_;
    integer.length = std::max<std::size_t>(value.len_, toPoint) + 1;
    integer.limbs.resize(integer.length);
    std::fill_n(integer.limbs.data(), integer.length, 0);
    integer.limbs[0] = sticky ? 1 : 0;
    std::copy(value.limbs_.data(), value.limbs_.data() + value.len_,
              integer.limbs.data() + integer.length - value.len_);
    roundMantissa(integer, static_cast<Precision>(value.expn_), mode);
    const auto bits = static_cast<std::uint64_t>(value.expn_ + integer.exponent);
    const auto whole = static_cast<std::size_t>((bits + limbBits - 1) / limbBits);
    result.limbs.resize(whole);
    for (std::size_t i = 0; i < whole; ++i)
        result.limbs[whole - 1 - i] = i < integer.length ? integer.limbs[integer.length - 1 - i] : 0;
    if (bits % limbBits != 0)
        shiftRight(result.limbs.data(), result.limbs.data(), whole,
                   limbBits - static_cast<unsigned>(bits % limbBits));
    result.trim(whole);
    return result;
}

} // namespace specloom::number
