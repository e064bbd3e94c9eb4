#pragma once

#include "number/big_float.h"

#include <cstddef> // std::size_t
#include <cstdint> // std::int64_t, std::uint32_t
#include <new>     // std::bad_alloc
#include <utility> // std::exchange

namespace specloom::number {

/// A result before it is normalised and rounded: sign and 0.limbs * 2^exponent, with an exponent that may be
/// outside of every range. The top bits may be zero.
struct Unrounded {
    std::uint32_t sign = 0;
    std::int64_t exponent = 0;
    LimbBlock limbs;
    std::size_t length = 0;
};

/// The operations of BigFloat as they look from inside: they may throw std::bad_alloc, and exponents are
/// wide.
class BigFloatMath {
  public:
    /// Runs an operation that writes to `r` and turns a lack of memory into its status.
    template <typename Operation>
    static Status guarded(BigFloat& r, Operation operation) noexcept {
        try {
            return operation();
        } catch (const std::bad_alloc&) {
            r.setNaN();
            return statusOutOfMemory;
        }
    }

    /// Gives `r` the value: shifts its top bit up, rounds, and holds the exponent against its range. Zero
    /// limbs give zero. A `value` whose lowest bit stands for bits that were left out must have that bit at
    /// least two places below the last one kept.
    static Status normalizeAndRound(BigFloat& r, Unrounded value, Precision prec, Flags flags);

    /// `a` with 2^`shift` taken in, rounded to `prec`.
    static Status scale(BigFloat& r, const BigFloat& a, std::int64_t shift, Precision prec, Flags flags);
    /// a * b * 2^shift.
    static Status mul(BigFloat& r, const BigFloat& a, const BigFloat& b, std::int64_t shift, Precision prec,
                      Flags flags);
    /// a / b * 2^shift.
    static Status div(BigFloat& r, const BigFloat& a, const BigFloat& b, std::int64_t shift, Precision prec,
                      Flags flags);

    /// Moves the exponent of a regular `r` out of it, which leaves a value from 1/2 up to 1.
    static std::int64_t takeExponent(BigFloat& r) noexcept { return std::exchange(r.expn_, 0); }

    /// base^exponent as r * 2^(returned shift), so that no exponent can leave its range; base >= 1.
    static std::int64_t pow(BigFloat& r, Status& status, std::uint32_t base, std::uint64_t exponent,
                            Precision prec, Flags flags);

    /// a * radix^exponent * 2^shift.
    static Status mulPowRadix(BigFloat& r, const BigFloat& a, unsigned radix, std::int64_t exponent,
                              std::int64_t shift, Precision prec, Flags flags);

    /// Gives `r` the value of `value` * 2^`shift`, which is rounded to `prec`.
    static Status fromNatural(BigFloat& r, std::uint32_t sign, Natural value, std::int64_t shift,
                              Precision prec, Flags flags);

    /// |`value`| rounded to an integer in the mode of `flags` (which looks at the sign). `sticky` tells that
    /// the true value is above |`value`| by less than its last bit. Throws std::bad_alloc.
    static Natural toNatural(const BigFloat& value, bool sticky, Flags flags);
};

} // namespace specloom::number
