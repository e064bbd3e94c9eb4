#pragma once

#include <cstdint> // std::uint8_t

namespace specloom::jv::schema {

/// The versions of JSON Schema, as bits of a set.
enum class Draft : std::uint8_t { D4 = 1, D6 = 2, D7 = 4, D2019 = 8, D2020 = 16 };

[[nodiscard]] constexpr std::uint8_t bit(Draft draft) noexcept {
    return static_cast<std::uint8_t>(draft);
}

} // namespace specloom::jv::schema
