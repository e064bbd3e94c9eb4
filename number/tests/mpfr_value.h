#pragma once

#include "number/big_float.h"

#include <cstdint> // std::int64_t
#include <string>  // std::string

#include <mpfr.h>

namespace specloom::number {

/// A value of the reference library.
class MpfrValue {
  public:
    explicit MpfrValue(mpfr_prec_t prec) { mpfr_init2(value_, prec); }
    /// Exactly `value`.
    explicit MpfrValue(const BigFloat& value) : MpfrValue(bitsOf(value)) {
        if (value.isNaN())
            mpfr_set_nan(value_);
        else if (value.isInfinite())
            mpfr_set_inf(value_, value.sign() != 0 ? -1 : 1);
        else if (value.isZero())
            mpfr_set_zero(value_, value.sign() != 0 ? -1 : 1);
        else
            setRegular(value);
    }
    MpfrValue(const MpfrValue&) = delete;
    MpfrValue& operator=(const MpfrValue&) = delete;
    ~MpfrValue() { mpfr_clear(value_); }

    [[nodiscard]] mpfr_ptr get() { return value_; }
    [[nodiscard]] mpfr_srcptr get() const { return value_; }

    /// Same class, same value, same sign.
    [[nodiscard]] bool same(const BigFloat& other) const {
        const MpfrValue right(other);
        if (mpfr_nan_p(value_) != 0 || other.isNaN())
            return mpfr_nan_p(value_) != 0 && other.isNaN();
        return mpfr_equal_p(value_, right.value_) != 0 && (mpfr_signbit(value_) != 0) == (other.sign() != 0);
    }

    [[nodiscard]] std::string text() const {
        char* chars = nullptr;
        mpfr_asprintf(&chars, "%Ra", value_);
        std::string result(chars);
        mpfr_free_str(chars);
        return result;
    }

  private:
    static mpfr_prec_t bitsOf(const BigFloat& value) {
        return value.isRegular() ? static_cast<mpfr_prec_t>(value.limbs().size() * limbBits) : 1;
    }

    void setRegular(const BigFloat& value) {
        mpz_t mantissa;
        mpz_init(mantissa);
        mpz_import(mantissa, value.limbs().size(), -1, sizeof(Limb), 0, 0, value.limbs().data());
        mpfr_set_z_2exp(value_, mantissa,
                        std::int64_t{value.exponent()} -
                            static_cast<std::int64_t>(value.limbs().size() * limbBits),
                        MPFR_RNDN);
        if (value.sign() != 0)
            mpfr_neg(value_, value_, MPFR_RNDN);
        mpz_clear(mantissa);
    }

    mpfr_t value_;
};

inline std::string describe(const BigFloat& value) {
    return MpfrValue(value).text();
}

} // namespace specloom::number
