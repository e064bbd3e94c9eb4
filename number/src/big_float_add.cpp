#include "number/big_float_math.h"

#include <algorithm> // std::max, std::min

namespace specloom::number {
namespace {

/// The limbs of an operand as they stand after `shift` zero bits in front of it, counted from the top.
class Shifted {
  public:
    Shifted(std::span<const Limb> limbs, std::uint64_t shift)
        : limbs_(limbs), wholeLimbs_(shift / limbBits), bits_(static_cast<unsigned>(shift % limbBits)) {}

    /// How many limbs from the top until nothing is left.
    [[nodiscard]] std::uint64_t length() const { return wholeLimbs_ + limbs_.size() + (bits_ != 0 ? 1 : 0); }

    [[nodiscard]] Limb operator[](std::uint64_t place) const {
        const std::uint64_t pair = std::uint64_t{fromTop(place, 1)} << limbBits | fromTop(place, 0);
        return static_cast<Limb>(pair >> bits_);
    }

    /// Whether there is a bit at `place` or lower.
    [[nodiscard]] bool reaches(std::uint64_t place) const {
        for (std::uint64_t i = std::max(place, wholeLimbs_); i < length(); ++i)
            if ((*this)[i] != 0)
                return true;
        return false;
    }

  private:
    [[nodiscard]] Limb fromTop(std::uint64_t place, std::uint64_t back) const {
        if (place < wholeLimbs_ + back || place - wholeLimbs_ - back >= limbs_.size())
            return 0;
        return limbs_[limbs_.size() - 1 - static_cast<std::size_t>(place - wholeLimbs_ - back)];
    }

    std::span<const Limb> limbs_;
    std::uint64_t wholeLimbs_;
    unsigned bits_;
};

/// |a| + |b| or |a| - |b| for |a| > |b|, both regular.
Unrounded combineMagnitudes(const BigFloat& a, const BigFloat& b, bool subtract, Precision prec) {
    const auto distance = static_cast<std::uint64_t>(std::int64_t{a.exponent()} - b.exponent());
    const Shifted upper(a.limbs(), 0);
    const Shifted lower(b.limbs(), distance);
    const std::uint64_t all = std::max(upper.length(), lower.length());
    // Enough limbs for rounding. When the operands are this near to each other, any number of leading bits
    // may cancel out; then all are needed, and they are no more than the operands have.
    const bool cancels = subtract && distance < 2;
    const bool whole = prec == exactPrecision || cancels;
    const std::uint64_t kept =
        whole ? all : std::min<std::uint64_t>(all, (std::uint64_t{prec} + 34) / limbBits);
    // Below both the limbs kept and the end of a there is only b. It matters as one bit, and takes a unit
    // from above when it is subtracted.
    const std::uint64_t start = std::min(all, std::max(kept, upper.length()));
    bool sticky = lower.reaches(start);
    std::uint64_t carry = subtract && sticky ? 1 : 0;

    Unrounded result;
    result.limbs.resize(static_cast<std::size_t>(kept) + 1);
    result.length = static_cast<std::size_t>(kept) + 1;
    result.exponent = std::int64_t{a.exponent()} + limbBits;
    for (std::uint64_t place = start; place-- > 0;) {
        const std::uint64_t sum = subtract ? std::uint64_t{upper[place]} - lower[place] - carry
                                           : std::uint64_t{upper[place]} + lower[place] + carry;
        // A difference below zero has all upper bits set.
        carry = sum >> limbBits & 1;
        const Limb limb = static_cast<Limb>(sum);
        if (place < kept)
            result.limbs[static_cast<std::size_t>(kept - 1 - place)] = limb;
        else
            sticky = sticky || limb != 0;
    }
    result.limbs[static_cast<std::size_t>(kept)] = subtract ? 0 : static_cast<Limb>(carry);
    if (sticky)
        result.limbs[0] |= 1;
    return result;
}

/// a + b with `bSign` in place of b's sign, where one of them is zero, infinite or not-a-number.
Status addSpecial(BigFloat& r, const BigFloat& a, const BigFloat& b, std::uint32_t bSign, Precision prec,
                  Flags flags) {
    if (a.isNaN() || b.isNaN()) {
        r.setNaN();
        return 0;
    }
    if (a.isInfinite() && b.isInfinite() && a.sign() != bSign) {
        r.setNaN();
        return statusInvalid;
    }
    if (a.isZero() && b.isZero()) {
        r.setZero(a.sign() == bSign ? bSign : (flags & roundingMask) == roundDown ? 1 : 0);
        return 0;
    }
    if (a.isInfinite() || b.isZero())
        return BigFloatMath::scale(r, a, 0, prec, flags);
    BigFloat signedB(b);
    signedB.setSign(bSign);
    return BigFloatMath::scale(r, signedB, 0, prec, flags);
}

Status addSigned(BigFloat& r, const BigFloat& a, const BigFloat& b, std::uint32_t bSign, Precision prec,
                 Flags flags) {
    if (!a.isRegular() || !b.isRegular())
        return addSpecial(r, a, b, bSign, prec, flags);
    const bool subtract = a.sign() != bSign;
    const int order = BigFloat::compareMagnitude(a, b);
    if (subtract && order == 0) {
        r.setZero((flags & roundingMask) == roundDown ? 1 : 0);
        return 0;
    }
    Unrounded result =
        order >= 0 ? combineMagnitudes(a, b, subtract, prec) : combineMagnitudes(b, a, subtract, prec);
    result.sign = order >= 0 ? a.sign() : bSign;
    return BigFloatMath::normalizeAndRound(r, std::move(result), prec, flags);
}

} // namespace

Status BigFloat::add(BigFloat& r, const BigFloat& a, const BigFloat& b, Precision prec,
                     Flags flags) noexcept {
    return BigFloatMath::guarded(r, [&] { return addSigned(r, a, b, b.sign(), prec, flags); });
}

Status BigFloat::sub(BigFloat& r, const BigFloat& a, const BigFloat& b, Precision prec,
                     Flags flags) noexcept {
    return BigFloatMath::guarded(r, [&] { return addSigned(r, a, b, b.sign() ^ 1, prec, flags); });
}

Status BigFloat::addInt(BigFloat& r, const BigFloat& a, std::int64_t b, Precision prec,
                        Flags flags) noexcept {
    BigFloat wide;
    if (wide.setInt(b) != 0) {
        r.setNaN();
        return statusOutOfMemory;
    }
    return add(r, a, wide, prec, flags);
}

} // namespace specloom::number
