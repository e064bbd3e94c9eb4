#pragma once

#include "egret/graph.h"
#include "egret/length_set.h"
#include "egret/speller.h"
#include "egret/strings.h"

#include <cstdint>  // std::uint32_t, std::uint64_t
#include <optional> // std::optional
#include <vector>   // std::vector

namespace specloom::egret {

/// Characters of the longest string that is looked for.
inline constexpr Length longestString = 100'000'000;

/// Paths of some lengths through a graph, drawn by the lengths that lead from each node to the end: none is
/// begun that cannot be ended.
class RandomPaths {
  public:
    /// The graph outlives it.
    RandomPaths(const Graph& graph, const Lengths& lengths);

    /// Whether there is a path of such a length.
    [[nodiscard]] bool isEmpty() const noexcept { return !shortest_; }
    /// Draws a path by the weights of edges, and its text. False when there is none.
    bool walk(const Draw& draw, Speller& speller) const;

  private:
    [[nodiscard]] Length longestNeeded() const;
    [[nodiscard]] std::optional<Length> lengthBy(const Edge& edge, Length done) const;
    /// Null when none leads on, which no walk comes to that begins where there is a path.
    [[nodiscard]] const Edge* choose(std::uint32_t node, Length done, const Draw& draw) const;

    const Graph& graph_;
    Length min_ = 0;
    Length max_ = 0; ///< of those that are drawn
    std::vector<LengthSet> lengths_;
    std::optional<Length> shortest_;
};

/// The symbols of a path's characters.
using Path = std::vector<std::uint32_t>;
/// Which marks have been gone through.
using Marks = std::vector<bool>;

/// Paths that together go through each mark that a path of such a length can go through and that is not
/// among `covered`; shortest first. What they go through is added there. They have `budget` characters at
/// most, from which theirs are taken: the longest paths are left out.
[[nodiscard]] std::vector<Path> coveringPaths(const Graph& graph, const Lengths& lengths, Marks& covered,
                                              std::uint64_t& budget);

} // namespace specloom::egret
