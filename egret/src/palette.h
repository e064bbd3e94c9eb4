#pragma once

#include "egret/strings.h"
#include "regex/charset.h"

#include <cstdint> // std::uint32_t
#include <vector>  // std::vector

namespace specloom::egret {

/// The characters of a set that a reader likes best, to draw from: ASCII letters and digits, else other ASCII
/// that prints, else letters, else what else prints, else a space, else any.
class Palette {
  public:
    /// Of a normalized set that is not empty.
    explicit Palette(const regex::CharSet& set);

    /// One of them. Where all letters are allowed they make up something that can be spoken: `previous` is
    /// the character in front of it, 0 for none.
    [[nodiscard]] char32_t pick(char32_t previous, const Draw& draw) const;

    /// How often a set is taken when there are others; 0 for those that are not legible.
    [[nodiscard]] std::uint32_t weight() const noexcept { return weight_; }

  private:
    std::vector<regex::CodePointRange> ranges_;
    std::uint32_t count_ = 0;
    std::uint32_t weight_ = 0;
    char32_t letters_ = 0; ///< 'a' or 'A' when all of that case are allowed
    bool digits_ = false;  ///< whether all of them are allowed
};

} // namespace specloom::egret
