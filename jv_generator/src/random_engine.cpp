#include "jv_generator/random_engine.h"

#include <bit> // std::bit_width

namespace specloom::jv_generator {

namespace {

constexpr std::uint64_t multiplier = 48271;
constexpr std::uint64_t modulus = 2147483647;
constexpr int bitsOfDraw = 30;
constexpr std::uint64_t drawsKept = std::uint64_t{1} << bitsOfDraw; ///< draws past them are rejected

} // namespace

std::uint32_t RandomEngine::next() noexcept {
    state_ = static_cast<std::uint32_t>(state_ * multiplier % modulus);
    return state_;
}

std::uint64_t RandomEngine::below(std::uint64_t bound) noexcept {
    if (bound <= 1)
        return 0;
    const int bits = static_cast<int>(std::bit_width(bound - 1));
    for (;;) {
        std::uint64_t value = 0;
        for (int missing = bits; missing > 0; missing -= bitsOfDraw) {
            std::uint64_t draw = next() - least;
            while (draw >= drawsKept)
                draw = next() - least;
            // The high bits of a draw are the better ones.
            const int taken = missing < bitsOfDraw ? missing : bitsOfDraw;
            value = value << taken | draw >> (bitsOfDraw - taken);
        }
        if (value < bound)
            return value;
    }
}

std::uint64_t RandomEngine::between(std::uint64_t min, std::uint64_t max) noexcept {
    if (max <= min)
        return min;
    const std::uint64_t span = max - min;
    return min + (span == UINT64_MAX ? below(UINT64_MAX) : below(span + 1));
}

} // namespace specloom::jv_generator
