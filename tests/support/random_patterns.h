#pragma once

#include <cstdint> // std::uint32_t
#include <random>  // std::mt19937
#include <string>  // std::string

namespace specloom::test_support {

/// Regular expressions of all constructs that regex::Pattern knows, over a few characters: 'a', 'b', 'c', '-'
/// and '.' stand for all that they can tell apart. The same seed gives the same ones everywhere.
class RandomPatterns {
  public:
    explicit RandomPatterns(std::uint32_t seed) : numbers_(seed) {}

    /// Short enough for all texts of a few characters to be tried.
    [[nodiscard]] std::string next();

  private:
    std::uint32_t below(std::uint32_t bound) { return static_cast<std::uint32_t>(numbers_()) % bound; }
    std::string alternation(int depth);
    std::string sequence(int depth);
    std::string atom(int depth);
    std::string quantifier();

    std::mt19937 numbers_;
};

} // namespace specloom::test_support
