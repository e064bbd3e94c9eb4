#pragma once

#include <bit>     // std::bit_width
#include <cstdint> // std::uint32_t, std::uint64_t

namespace specloom::jv_generator {

/// The minimal standard generator: the state becomes the state times 48271, modulo 2^31 - 1. It starts from
/// 1, and gives the same numbers on every platform.
class RandomEngine {
  public:
    static constexpr std::uint32_t least = 1;
    static constexpr std::uint32_t most = 2147483646;

    /// A number from `least` to `most`.
    [[nodiscard]] std::uint32_t next() noexcept {
        // Modulo a power of two less one, which needs no division.
        const std::uint64_t product = state_ * multiplier;
        const std::uint64_t folded = (product & modulus) + (product >> 31);
        state_ = static_cast<std::uint32_t>(folded >= modulus ? folded - modulus : folded);
        return state_;
    }
    /// A number from 0 to one below `bound`, each as likely as the others; 0 for a bound of 0 or 1, without a
    /// draw. It takes as many low bits as the bound has, of several draws shifted together where one has too
    /// few. Draws beyond the last whole multiple of what is taken of them are rejected, and so is what is
    /// past the range.
    [[nodiscard]] std::uint64_t below(std::uint64_t bound) noexcept {
        if (bound <= 1)
            return 0;
        const auto bits = static_cast<int>(std::bit_width(bound - 1));
        for (;;) {
            const std::uint64_t value = bits <= bitsOfDraw ? draw(bits) : drawSeveral(bits);
            if (value < bound)
                return value;
        }
    }
    /// A number of a range with both ends; `min` when the range is empty.
    [[nodiscard]] std::uint64_t between(std::uint64_t min, std::uint64_t max) noexcept {
        if (max <= min)
            return min;
        const std::uint64_t span = max - min;
        return span == UINT64_MAX ? drawSeveral(64) : min + below(span + 1);
    }

  private:
    static constexpr std::uint64_t multiplier = 48271;
    static constexpr std::uint64_t modulus = 2147483647;
    static constexpr std::uint64_t numbers = most - least + 1;
    static constexpr int bitsOfDraw = 30;

    /// So many low bits of one number, all values as likely as the others.
    [[nodiscard]] std::uint64_t draw(int bits) noexcept {
        const std::uint64_t kept = numbers >> bits << bits;
        std::uint64_t number = next() - least;
        while (number >= kept)
            number = next() - least;
        return number & ((std::uint64_t{1} << bits) - 1);
    }
    [[nodiscard]] std::uint64_t drawSeveral(int bits) noexcept;

    std::uint32_t state_ = 1;
};

} // namespace specloom::jv_generator
