#pragma once

#include "regex/charset.h"

#include <array>   // std::array
#include <cstddef> // std::size_t
#include <cstdint> // std::uint32_t
#include <span>    // std::span
#include <vector>  // std::vector

namespace specloom::regex {

/// The code points that a pattern cannot tell from one another, as the classes of an alphabet that is as
/// small as may be.
class CharacterClasses {
  public:
    /// Throws SyntaxError with "Pattern is too large" when classes and sets are too many together.
    CharacterClasses(std::span<const CharSet> sets, std::span<const char32_t> characters);

    [[nodiscard]] std::uint32_t count() const noexcept { return count_; }
    [[nodiscard]] std::uint32_t ofAscii(unsigned char character) const noexcept { return ascii_[character]; }
    [[nodiscard]] std::uint32_t of(char32_t codePoint) const;
    /// Whether the members of a class are among those of a set.
    [[nodiscard]] bool contains(std::uint32_t set, std::uint32_t characterClass) const noexcept {
        return members_[std::size_t{set} * count_ + characterClass];
    }

  private:
    [[nodiscard]] std::size_t segmentOf(char32_t codePoint) const;
    void cut(std::span<const CharSet> sets, std::span<const char32_t> characters);
    void split(std::span<const std::size_t> segments);

    /// Where the segments begin, and the class of each.
    std::vector<char32_t> begins_;
    std::vector<std::uint32_t> classes_;
    /// Segments of each class.
    std::vector<std::size_t> sizes_;
    /// For split(), kept between the calls.
    std::vector<std::size_t> inside_;
    std::vector<std::uint32_t> renamed_;
    std::uint32_t count_ = 1;
    std::array<std::uint32_t, 128> ascii_{};
    std::vector<bool> members_;
};

} // namespace specloom::regex
