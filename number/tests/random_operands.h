#pragma once

#include "number/big_float.h"

#include <cstdint> // std::int64_t, std::uint32_t, std::uint64_t
#include <random>  // std::mt19937_64
#include <string>  // std::string

namespace specloom::number {

/// Operands that are hard on rounding: long runs of equal bits, few bits, exponents near and far. The same
/// sequence on every run and machine, which the distributions of the standard library do not promise.
class RandomOperands {
  public:
    explicit RandomOperands(std::uint64_t seed) : engine_(seed) {}

    /// Any 64 bits.
    std::uint64_t bits() { return engine_(); }
    /// From `low` to `high`, both included, which must be less than 2^63 apart.
    std::int64_t between(std::int64_t low, std::int64_t high) {
        return low + static_cast<std::int64_t>(engine_() % static_cast<std::uint64_t>(high - low + 1));
    }
    bool oneIn(int n) { return between(1, n) == 1; }

    Precision precision() {
        return static_cast<Precision>(oneIn(3)   ? between(1, 40)
                                      : oneIn(2) ? between(1, 1000)
                                                 : 32 * between(1, 31));
    }

    /// A finite value of at most `bits` bits that is not zero.
    BigFloat value(std::int64_t bits, std::int64_t exponent) {
        std::string hex = oneIn(2) ? "-" : "";
        const std::int64_t digits = between(1, (bits + 3) / 4);
        hex += "123456789abcdef"[between(0, 14)];
        for (std::int64_t i = 1; i < digits;) {
            const char digit = oneIn(2) ? '0' : oneIn(2) ? 'f' : "0123456789abcdef"[between(0, 15)];
            // Runs, so that carries and cancellations go far.
            for (std::int64_t run = oneIn(4) ? between(1, 80) : 1; run > 0 && i < digits; --run, ++i)
                hex += digit;
        }
        hex += 'p';
        hex += std::to_string(exponent - 4 * digits);
        BigFloat result;
        BigFloat::fromText(result, hex, nullptr, 16, exactPrecision, extendedExponents);
        return result;
    }
    BigFloat value() {
        const std::int64_t reach = oneIn(2) ? 8 : oneIn(2) ? 1500 : 100000;
        return value(1000, between(-reach, reach));
    }

    /// `count` digits of `radix`, the first one not zero.
    std::string digits(std::int64_t count, unsigned radix) {
        static constexpr char all[] = "0123456789abcdefghijklmnopqrstuvwxyz";
        std::string result(1, all[between(1, radix - 1)]);
        while (static_cast<std::int64_t>(result.size()) < count) {
            const char digit = all[oneIn(3) ? 0 : oneIn(3) ? radix - 1 : between(0, radix - 1)];
            for (std::int64_t run = oneIn(5) ? between(1, 40) : 1; run > 0; --run)
                result += digit;
        }
        result.resize(static_cast<std::size_t>(count));
        return result;
    }

  private:
    std::mt19937_64 engine_;
};

} // namespace specloom::number
