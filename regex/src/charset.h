#pragma once

#include <initializer_list> // std::initializer_list
#include <vector>           // std::vector

namespace specloom::regex {

inline constexpr char32_t lastCodePoint = 0x10FFFF;

/// First and last, both included.
struct CodePointRange {
    char32_t first;
    char32_t last;
    bool operator==(const CodePointRange&) const = default;
};

/// A set of code points.
class CharSet {
  public:
    CharSet() = default;
    CharSet(std::initializer_list<CodePointRange> ranges);

    void add(char32_t first, char32_t last) { ranges_.push_back({first, last}); }
    void add(const CharSet& other);
    /// Sorts the ranges and joins those that touch. What reads a set asks for it after the last addition.
    void normalize();
    /// Of a normalized set.
    [[nodiscard]] CharSet complement() const;
    [[nodiscard]] const std::vector<CodePointRange>& ranges() const noexcept { return ranges_; }

  private:
    std::vector<CodePointRange> ranges_;
};

/// The sets of the escapes \d, \w and \s and of the dot (ECMA-262, section 22.2.2.9), without flag "s" or
/// "i".
[[nodiscard]] const CharSet& digitSet();
[[nodiscard]] const CharSet& wordSet();
[[nodiscard]] const CharSet& spaceSet();
[[nodiscard]] const CharSet& dotSet();

} // namespace specloom::regex
