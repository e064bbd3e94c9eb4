#pragma once

#include <cstddef>  // std::size_t
#include <cstdint>  // std::uint32_t
#include <optional> // std::optional
#include <span>     // std::span
#include <vector>   // std::vector

namespace specloom::egret {

using Length = std::uint32_t;

/// first, first + step, ... last; a step is at least 1.
struct Progression {
    Length first;
    Length last;
    Length step;

    /// The smallest that is at least `bound`.
    [[nodiscard]] std::optional<Length> atLeast(Length bound) const;
    [[nodiscard]] bool contains(Length length) const { return atLeast(length) == length; }
};

/// A set of lengths, held as progressions: those of a loop are one or few, however long.
class LengthSet {
  public:
    [[nodiscard]] bool isEmpty() const noexcept { return parts_.empty(); }
    [[nodiscard]] bool contains(Length length) const;
    /// The smallest that is at least `bound`.
    [[nodiscard]] std::optional<Length> atLeast(Length bound) const;
    [[nodiscard]] std::span<const Progression> parts() const noexcept { return parts_; }

    /// Adds another set's lengths and `more` each, up to `limit`.
    void add(const LengthSet& other, Length more, Length limit);
    /// Makes one progression of those that go on from one another.
    void normalize();
    /// Adds one that is larger than all others: behind the one that is smaller by `step`, where there is one.
    void append(Length length, Length step) { appendAll(length, step, length); }
    /// Adds those from `length` on at distances of `step`, up to `limit`, in the same way.
    void appendAll(Length length, Length step, Length limit);

  private:
    std::vector<Progression> parts_;
};

struct Sum {
    Length total;
    Length left; ///< the part of the left set
};

/// The smallest sum of one of each set that is at least `bound`.
[[nodiscard]] std::optional<Sum> sumAtLeast(const LengthSet& left, const LengthSet& right, Length bound);

} // namespace specloom::egret
