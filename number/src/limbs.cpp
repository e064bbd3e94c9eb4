#include "number/limbs.h"

#include "number/big_context.h"

#include <algorithm> // std::any_of, std::fill_n, std::copy_n
#include <limits>    // std::numeric_limits
#include <new>       // std::bad_alloc

namespace specloom::number {

void LimbBlock::Release::operator()(Limb* block) const noexcept {
    static_cast<void>(BigContext::instance().reallocate(block, 0));
}

void LimbBlock::resize(std::size_t length) {
    if (length == 0) {
        limbs_.reset();
        return;
    }
    if (length > std::numeric_limits<std::uint32_t>::max())
        throw std::bad_alloc();
    void* block = BigContext::instance().reallocate(limbs_.get(), length * sizeof(Limb));
    if (block == nullptr)
        throw std::bad_alloc();
    // The old block is gone by now: the pointer to it is dropped, not released.
    static_cast<void>(limbs_.release());
    limbs_.reset(static_cast<Limb*>(block));
}

void Natural::trim(std::size_t room) noexcept {
    while (room != 0 && limbs[room - 1] == 0)
        --room;
    length = room;
}

Limb multiplyInPlace(Limb* r, std::size_t n, Limb factor, Limb addend) noexcept {
    std::uint64_t carry = addend;
    for (std::size_t i = 0; i < n; ++i) {
        carry += std::uint64_t{r[i]} * factor;
        r[i] = static_cast<Limb>(carry);
        carry >>= limbBits;
    }
    return static_cast<Limb>(carry);
}

namespace {

/// r[0, n) += a[0, n) * factor; returns the limb that is carried out.
Limb addProduct(Limb* r, const Limb* a, std::size_t n, Limb factor) noexcept {
    std::uint64_t carry = 0;
    for (std::size_t i = 0; i < n; ++i) {
        carry += std::uint64_t{a[i]} * factor + r[i];
        r[i] = static_cast<Limb>(carry);
        carry >>= limbBits;
    }
    return static_cast<Limb>(carry);
}

/// r[0, n) -= a[0, n) * factor; returns the limb that is borrowed.
Limb subtractProduct(Limb* r, const Limb* a, std::size_t n, Limb factor) noexcept {
    std::uint64_t borrow = 0;
    for (std::size_t i = 0; i < n; ++i) {
        const std::uint64_t product = std::uint64_t{a[i]} * factor + borrow;
        const Limb low = static_cast<Limb>(product);
        borrow = (product >> limbBits) + (r[i] < low ? 1 : 0);
        r[i] -= low;
    }
    return static_cast<Limb>(borrow);
}

/// The quotient limb of (top, next, below) by a divisor that starts with (v1, v2): right or one too large.
Limb estimateQuotient(Limb top, Limb next, Limb below, Limb v1, Limb v2) noexcept {
    const std::uint64_t numerator = std::uint64_t{top} << limbBits | next;
    std::uint64_t quotient = numerator / v1;
    std::uint64_t remainder = numerator % v1;
    constexpr std::uint64_t limbEnd = std::uint64_t{1} << limbBits;
    while (quotient >= limbEnd || quotient * v2 > (remainder << limbBits | below)) {
        --quotient;
        remainder += v1;
        if (remainder >= limbEnd)
            break;
    }
    return static_cast<Limb>(quotient);
}

} // namespace

void multiply(Limb* r, const Limb* a, std::size_t an, const Limb* b, std::size_t bn) noexcept {
    // The longer operand in the inner loop.
    if (an < bn)
        return multiply(r, b, bn, a, an);
    std::fill_n(r, an + bn, 0);
    for (std::size_t j = 0; j < bn; ++j)
        r[an + j] = addProduct(r + j, a, an, b[j]);
}

Limb addInPlace(Limb* r, std::size_t n, const Limb* a, std::size_t an) noexcept {
    std::uint64_t carry = 0;
    for (std::size_t i = 0; i < n && (i < an || carry != 0); ++i) {
        carry += std::uint64_t{r[i]} + (i < an ? a[i] : 0);
        r[i] = static_cast<Limb>(carry);
        carry >>= limbBits;
    }
    return static_cast<Limb>(carry);
}

Limb divideInPlace(Limb* q, std::size_t n, Limb divisor) noexcept {
    std::uint64_t remainder = 0;
    for (std::size_t i = n; i-- > 0;) {
        const std::uint64_t numerator = remainder << limbBits | q[i];
        q[i] = static_cast<Limb>(numerator / divisor);
        remainder = numerator % divisor;
    }
    return static_cast<Limb>(remainder);
}

void divide(Limb* q, Limb* u, std::size_t un, const Limb* v, std::size_t vn) noexcept {
    if (vn == 1) {
        Limb remainder = u[un];
        for (std::size_t i = un; i-- > 0;) {
            const std::uint64_t numerator = std::uint64_t{remainder} << limbBits | u[i];
            q[i] = static_cast<Limb>(numerator / v[0]);
            remainder = static_cast<Limb>(numerator % v[0]);
        }
        u[0] = remainder;
        return;
    }
    for (std::size_t j = un + 1 - vn; j-- > 0;) {
        Limb digit = estimateQuotient(u[j + vn], u[j + vn - 1], u[j + vn - 2], v[vn - 1], v[vn - 2]);
        const Limb borrow = subtractProduct(u + j, v, vn, digit);
        const bool tooLarge = u[j + vn] < borrow;
        u[j + vn] -= borrow;
        if (tooLarge) {
            --digit;
            u[j + vn] += addInPlace(u + j, vn, v, vn);
        }
        q[j] = digit;
    }
}

Limb shiftLeft(Limb* r, const Limb* a, std::size_t n, unsigned bits) noexcept {
    Limb out = 0;
    for (std::size_t i = 0; i < n; ++i) {
        const std::uint64_t wide = std::uint64_t{a[i]} << bits | out;
        r[i] = static_cast<Limb>(wide);
        out = static_cast<Limb>(wide >> limbBits);
    }
    return out;
}

void shiftRight(Limb* r, const Limb* a, std::size_t n, unsigned bits) noexcept {
    for (std::size_t i = 0; i < n; ++i) {
        const Limb above = i + 1 < n ? a[i + 1] : 0;
        r[i] = static_cast<Limb>((std::uint64_t{above} << limbBits | a[i]) >> bits);
    }
}

bool anyBit(const Limb* a, std::size_t n) noexcept {
    return std::any_of(a, a + n, [](Limb limb) { return limb != 0; });
}

} // namespace specloom::number
