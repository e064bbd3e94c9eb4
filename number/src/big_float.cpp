#include "number/big_float.h"

#include "number/big_context.h"
#include "number/big_float_math.h"

#include <algorithm> // std::copy_n
#include <bit>       // std::bit_cast
#include <utility>   // std::exchange, std::swap

namespace specloom::number {

void BigFloat::init() noexcept {
    BigContext::instance().acquire();
}

BigFloat::BigFloat(const BigFloat& other) : sign_(other.sign_), expn_(other.expn_), len_(other.len_) {
    limbs_.resize(len_);
    std::copy_n(other.limbs_.data(), len_, limbs_.data());
    // Last, since a constructor that throws is not followed by the destructor.
    init();
}

BigFloat::BigFloat(BigFloat&& other) noexcept {
    init();
    swap(other);
}

BigFloat& BigFloat::operator=(const BigFloat& other) {
    if (this != &other) {
        BigFloat copied(other);
        swap(copied);
    }
    return *this;
}

BigFloat& BigFloat::operator=(BigFloat&& other) noexcept {
    if (this != &other) {
        clear();
        swap(other);
    }
    return *this;
}

BigFloat::~BigFloat() {
    // The limbs go before the count does, so that the allocator never hears from a number that is not
    // counted.
    limbs_.resize(0);
    BigContext::instance().release();
}

void BigFloat::setSpecial(std::uint32_t sign, std::int32_t expn) noexcept {
    sign_ = sign;
    expn_ = expn;
    len_ = 0;
    limbs_.resize(0);
}

void BigFloat::swap(BigFloat& other) noexcept {
    std::swap(sign_, other.sign_);
    std::swap(expn_, other.expn_);
    std::swap(len_, other.len_);
    std::swap(limbs_, other.limbs_);
}

Status BigFloat::copy(const BigFloat& other) noexcept {
    return BigFloatMath::guarded(*this, [&] {
        *this = other;
        return Status{0};
    });
}

Status BigFloat::setUInt(std::uint64_t value) noexcept {
    return BigFloatMath::guarded(*this, [&] {
        Unrounded exact;
        exact.exponent = 64;
        exact.limbs.resize(2);
        exact.limbs[0] = static_cast<Limb>(value);
        exact.limbs[1] = static_cast<Limb>(value >> limbBits);
        exact.length = 2;
        return BigFloatMath::normalizeAndRound(*this, std::move(exact), exactPrecision, 0);
    });
}

Status BigFloat::setInt(std::int64_t value) noexcept {
    const auto bits = static_cast<std::uint64_t>(value);
    const Status status = setUInt(value < 0 ? 0 - bits : bits);
    setSign(value < 0 ? 1 : 0);
    return status;
}

Status BigFloat::setDouble(double value) noexcept {
    const auto bits = std::bit_cast<std::uint64_t>(value);
    const auto sign = static_cast<std::uint32_t>(bits >> 63);
    const auto biased = static_cast<std::int32_t>(bits >> 52 & 0x7ff);
    const std::uint64_t fraction = bits & 0xfffffffffffff;
    if (biased == 0x7ff) {
        if (fraction != 0)
            setNaN();
        else
            setInf(sign);
        return 0;
    }
    // A denormal has no hidden bit and the exponent of the smallest normal one.
    const Status status = setUInt(biased == 0 ? fraction : fraction | std::uint64_t{1} << 52);
    if (isRegular())
        expn_ += (biased == 0 ? 1 : biased) - 1023 - 52;
    setSign(sign);
    return status;
}

int BigFloat::compareMagnitude(const BigFloat& a, const BigFloat& b) noexcept {
    // The reserved exponents are in the right order: zero is the lowest, infinity above all finite ones.
    if (a.expn_ != b.expn_)
        return a.expn_ < b.expn_ ? -1 : 1;
    const std::uint32_t length = std::max(a.len_, b.len_);
    for (std::uint32_t i = 1; i <= length; ++i) {
        const Limb left = i <= a.len_ ? a.limbs_[a.len_ - i] : 0;
        const Limb right = i <= b.len_ ? b.limbs_[b.len_ - i] : 0;
        if (left != right)
            return left < right ? -1 : 1;
    }
    return 0;
}

int BigFloat::compareFull(const BigFloat& a, const BigFloat& b) noexcept {
    if (a.isNaN() || b.isNaN())
        return 2;
    if (a.isZero() && b.isZero())
        return 0;
    if (a.sign_ != b.sign_)
        return a.sign_ != 0 ? -1 : 1;
    const int magnitude = compareMagnitude(a, b);
    return a.sign_ != 0 ? -magnitude : magnitude;
}

} // namespace specloom::number
