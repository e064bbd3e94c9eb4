#pragma once

#include <cstdint> // std::uint8_t

namespace specloom::jv::schema {

/// The versions of JSON Schema, as bits of a set.
enum class Draft : std::uint8_t { D4 = 1, D6 = 2, D7 = 4, D2019 = 8, D2020 = 16 };

[[nodiscard]] constexpr std::uint8_t bit(Draft draft) noexcept {
    return static_cast<std::uint8_t>(draft);
}

/// Sets of versions, for the tables of what each of them knows.
namespace drafts {
inline constexpr std::uint8_t all = 31;
inline constexpr std::uint8_t from6 = all & ~bit(Draft::D4);
inline constexpr std::uint8_t from7 = from6 & ~bit(Draft::D6);
inline constexpr std::uint8_t from2019 = bit(Draft::D2019) | bit(Draft::D2020);
inline constexpr std::uint8_t upTo2019 = all & ~bit(Draft::D2020);
inline constexpr std::uint8_t in2019 = bit(Draft::D2019);
inline constexpr std::uint8_t in2020 = bit(Draft::D2020);
} // namespace drafts

} // namespace specloom::jv::schema
