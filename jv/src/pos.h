#pragma once

#include <cstdint> // std::int32_t

namespace specloom::jv {

/// A place in a source text. The counting base is that of the reader which set it: JSON counts lines and
/// columns from 1, columns in bytes; YAML carries libyaml's marks, which count both from 0.
struct Pos {
    std::int32_t line = -1;   ///< -1 when unknown
    std::int32_t column = -1; ///< -1 when unknown

    [[nodiscard]] constexpr bool isKnown() const noexcept { return line >= 0 && column >= 0; }
    friend constexpr bool operator==(const Pos&, const Pos&) = default;
};

} // namespace specloom::jv
