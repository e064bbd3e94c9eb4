#pragma once

#include <cstdint> // std::uint32_t, std::uint64_t

namespace specloom::jv_generator {

/// The minimal standard generator: the state becomes the state times 48271, modulo 2^31 - 1. It starts from
/// 1, and gives the same numbers on every platform.
class RandomEngine {
  public:
    static constexpr std::uint32_t least = 1;
    static constexpr std::uint32_t most = 2147483646;

    /// A number from `least` to `most`.
    [[nodiscard]] std::uint32_t next() noexcept;
    /// A number from 0 to one below `bound`, each as likely as the others; 0 for a bound of 0 or 1, without a
    /// draw. As many draws as it takes are shifted together, 30 bits each; what is past the range is
    /// rejected.
    [[nodiscard]] std::uint64_t below(std::uint64_t bound) noexcept;
    /// A number of a range with both ends; `min` when the range is empty.
    [[nodiscard]] std::uint64_t between(std::uint64_t min, std::uint64_t max) noexcept;

  private:
    std::uint32_t state_ = 1;
};

} // namespace specloom::jv_generator
