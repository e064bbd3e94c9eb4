#include "number/big_float_math.h"

#include <algorithm> // std::copy_n, std::fill_n, std::max, std::min

namespace specloom::number {
namespace {

Status mulSpecial(BigFloat& r, const BigFloat& a, const BigFloat& b) {
    const std::uint32_t sign = a.sign() ^ b.sign();
    if (a.isNaN() || b.isNaN()) {
        r.setNaN();
        return 0;
    }
    if ((a.isInfinite() && b.isZero()) || (a.isZero() && b.isInfinite())) {
        r.setNaN();
        return statusInvalid;
    }
    if (a.isInfinite() || b.isInfinite())
        r.setInf(sign);
    else
        r.setZero(sign);
    return 0;
}

Status divSpecial(BigFloat& r, const BigFloat& a, const BigFloat& b) {
    const std::uint32_t sign = a.sign() ^ b.sign();
    if (a.isNaN() || b.isNaN()) {
        r.setNaN();
        return 0;
    }
    if ((a.isInfinite() && b.isInfinite()) || (a.isZero() && b.isZero())) {
        r.setNaN();
        return statusInvalid;
    }
    if (a.isInfinite() || b.isZero()) {
        // Before r is set, since it may be a.
        const Status status = a.isInfinite() ? 0 : statusDivideByZero;
        r.setInf(sign);
        return status;
    }
    r.setZero(sign);
    return 0;
}

/// The top limbs of a factor that a faithful product of `prec` bits needs: with at least 34 bits more than
/// that, what is cut off is far less than a unit of the last bit kept.
std::span<const Limb> cutFactor(std::span<const Limb> limbs, Precision prec, Flags flags) {
    const std::size_t needed = (std::size_t{prec} + 33) / limbBits + 1;
    if ((flags & roundingMask) != roundFaithful || prec == exactPrecision || limbs.size() <= needed)
        return limbs;
    return limbs.last(needed);
}

} // namespace

Status BigFloatMath::mul(BigFloat& r, const BigFloat& a, const BigFloat& b, std::int64_t shift,
                         Precision prec, Flags flags) {
    if (!a.isRegular() || !b.isRegular())
        return mulSpecial(r, a, b);
    const std::span<const Limb> left = cutFactor(a.limbs(), prec, flags);
    const std::span<const Limb> right = cutFactor(b.limbs(), prec, flags);
    Unrounded product;
    product.sign = a.sign() ^ b.sign();
    product.exponent = std::int64_t{a.exponent()} + b.exponent() + shift;
    product.length = left.size() + right.size();
    product.limbs.resize(product.length);
    multiply(product.limbs.data(), left.data(), left.size(), right.data(), right.size());
    const bool cut = left.size() != a.limbs().size() || right.size() != b.limbs().size();
    const Status status = normalizeAndRound(r, std::move(product), prec, flags);
    return cut ? status | statusInexact : status;
}

Status BigFloatMath::div(BigFloat& r, const BigFloat& a, const BigFloat& b, std::int64_t shift,
                         Precision prec, Flags flags) {
    if (!a.isRegular() || !b.isRegular())
        return divSpecial(r, a, b);
    const std::span<const Limb> dividend = a.limbs();
    const std::span<const Limb> divisor = b.limbs();
    if (prec == exactPrecision)
        prec = static_cast<Precision>(std::max(dividend.size(), divisor.size()) * limbBits);
    // Both mantissas are between 1/2 and 1, so that the quotient of this many limbs has at least prec + 2
    // bits.
    const std::size_t length = std::max((std::size_t{prec} + 33) / limbBits, dividend.size());
    const std::size_t padded = length + divisor.size();
    LimbBlock numerator;
    numerator.resize(padded + 1);
    std::fill_n(numerator.data(), padded + 1, 0);
    std::copy_n(dividend.data(), dividend.size(), numerator.data() + padded - dividend.size());

    Unrounded quotient;
    quotient.sign = a.sign() ^ b.sign();
    quotient.exponent = std::int64_t{a.exponent()} - b.exponent() + limbBits + shift;
    quotient.length = length + 1;
    quotient.limbs.resize(quotient.length);
    divide(quotient.limbs.data(), numerator.data(), padded, divisor.data(), divisor.size());
    if (anyBit(numerator.data(), divisor.size()))
        quotient.limbs[0] |= 1;
    return normalizeAndRound(r, std::move(quotient), prec, flags);
}

Status BigFloat::mul(BigFloat& r, const BigFloat& a, const BigFloat& b, Precision prec,
                     Flags flags) noexcept {
    return BigFloatMath::guarded(r, [&] { return BigFloatMath::mul(r, a, b, 0, prec, flags); });
}

Status BigFloat::div(BigFloat& r, const BigFloat& a, const BigFloat& b, Precision prec,
                     Flags flags) noexcept {
    return BigFloatMath::guarded(r, [&] { return BigFloatMath::div(r, a, b, 0, prec, flags); });
}

} // namespace specloom::number
