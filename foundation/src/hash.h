#pragma once

#include <cstddef>     // std::size_t
#include <cstdint>     // std::uint64_t
#include <string_view> // std::string_view

namespace specloom {

inline constexpr std::uint64_t fnvOffsetBasis = 0xcbf29ce484222325;
inline constexpr std::uint64_t fnvPrime = 0x100000001b3;

/// FNV-1a with 64 bits over the bytes of `text`. For tables whose keys are texts of a document see
/// keyedHash().
[[nodiscard]] constexpr std::uint64_t fnv1a(std::string_view text) noexcept {
    std::uint64_t hash = fnvOffsetBasis;
    for (const char c : text)
        hash = (hash ^ static_cast<unsigned char>(c)) * fnvPrime;
    return hash;
}

/// FNV-1a with 64 bits over the lowest `bytes` bytes of `value`, low byte first.
[[nodiscard]] constexpr std::uint64_t fnv1a(std::uint64_t value, int bytes) noexcept {
    std::uint64_t hash = fnvOffsetBasis;
    for (int i = 0; i < bytes; ++i, value >>= 8)
        hash = (hash ^ (value & 0xff)) * fnvPrime;
    return hash;
}

/// Mixes `value` into `seed`; all arithmetic wraps at 64 bits.
[[nodiscard]] constexpr std::uint64_t combine(std::uint64_t seed, std::uint64_t value) noexcept {
    return seed ^ (value + 0x9e3779b9 + (seed << 6) + (seed >> 2));
}

} // namespace specloom
