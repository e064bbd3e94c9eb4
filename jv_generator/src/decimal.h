#pragma once

#include "number/number.h"

#include <cstdint> // std::uint64_t

namespace specloom::jv_generator {

/// Wide enough for integers of 20 digits with decimals behind them.
__extension__ using Integer = __int128;

/// Stands for everything beyond it.
inline constexpr Integer vast = Integer{1} << 120;

/// The value of a number times ten to `scale`, rounded down or up to an integer, and not beyond `vast`.
[[nodiscard]] Integer scaledDown(const number::Number& value, int scale);
[[nodiscard]] Integer scaledUp(const number::Number& value, int scale);

/// Digits behind the point of a number as it is written; at most 30.
[[nodiscard]] int decimalsOf(const number::Number& value);

/// `mantissa` divided by ten to `scale`, as an integer of 64 bits where it is one, else as the nearest float.
[[nodiscard]] number::Number numberOf(Integer mantissa, int scale);

/// The least common multiple of two positive numbers; `vast` when it is beyond that.
[[nodiscard]] Integer commonMultiple(Integer a, Integer b);

/// Ten to a power from 0 to 36.
[[nodiscard]] Integer powerOfTen(int exponent);

[[nodiscard]] Integer dividedDown(Integer value, Integer divisor);
[[nodiscard]] Integer dividedUp(Integer value, Integer divisor);

} // namespace specloom::jv_generator
