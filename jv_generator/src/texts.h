#pragma once

#include "jv_generator/random_engine.h"

#include <cstdint>     // std::uint64_t
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::jv_generator {

/// A word of so many small letters that can be spoken: consonants and vowels take turns.
[[nodiscard]] std::string word(RandomEngine& random, std::uint64_t letters);
/// The same of any number from `min` to `max`.
[[nodiscard]] std::string word(RandomEngine& random, std::uint64_t min, std::uint64_t max);
/// Words between blanks, `length` signs in all; one word when they are few.
[[nodiscard]] std::string prose(RandomEngine& random, std::uint64_t length);
/// So many signs of an alphabet of ASCII.
[[nodiscard]] std::string signsOf(RandomEngine& random, std::string_view alphabet, std::uint64_t count);
/// A number of a range, with zeros in front up to `digits`.
[[nodiscard]] std::string digits(RandomEngine& random, std::uint64_t min, std::uint64_t max, int digits);

} // namespace specloom::jv_generator
