#pragma once

#include "jv_generator/random_engine.h"

#include <cstdint>     // std::uint64_t
#include <string>      // std::string
#include <string_view> // std::string_view

// Each appends to a text, so that one buffer serves for all that are made.
namespace specloom::jv_generator {

/// A word of so many small letters that can be spoken: consonants and vowels take turns.
void addWord(RandomEngine& random, std::uint64_t letters, std::string& text);
/// The same of any number from `min` to `max`.
void addWord(RandomEngine& random, std::uint64_t min, std::uint64_t max, std::string& text);
/// Words between blanks, `length` signs in all; one word when they are few.
void addProse(RandomEngine& random, std::uint64_t length, std::string& text);
/// So many signs of an alphabet of ASCII.
void addSigns(RandomEngine& random, std::string_view alphabet, std::uint64_t count, std::string& text);
/// A number of a range, with zeros in front up to `digits`.
void addDigits(RandomEngine& random, std::uint64_t min, std::uint64_t max, int digits, std::string& text);

} // namespace specloom::jv_generator
