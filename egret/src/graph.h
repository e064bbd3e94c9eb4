#pragma once

#include "egret/alphabet.h"
#include "egret/contexts.h"
#include "egret/nfa.h"

#include <cstddef> // std::size_t
#include <cstdint> // std::uint32_t
#include <limits>  // std::numeric_limits
#include <span>    // std::span
#include <utility> // std::move, std::pair
#include <vector>  // std::vector

namespace specloom::egret {

inline constexpr std::uint32_t noSymbol = std::numeric_limits<std::uint32_t>::max();

struct Edge {
    std::uint32_t target;
    std::uint32_t symbol; ///< of the character that it consumes, or noSymbol
    Mark mark;
    std::uint32_t weight; ///< as that of a Branch

    /// Characters that it consumes.
    [[nodiscard]] std::uint32_t length() const noexcept { return symbol == noSymbol ? 0 : 1; }
};

/// The edges of one node each, in order.
class EdgeLists {
  public:
    EdgeLists() = default;
    /// Where the edges of each node begin, and where the last ones end.
    EdgeLists(std::vector<std::size_t> offsets, std::vector<Edge> edges)
        : offsets_(std::move(offsets)), edges_(std::move(edges)) {}

    [[nodiscard]] std::uint32_t size() const noexcept {
        return static_cast<std::uint32_t>(offsets_.size() - 1);
    }
    [[nodiscard]] std::span<const Edge> of(std::uint32_t node) const {
        return std::span(edges_).subspan(offsets_[node], offsets_[node + 1] - offsets_[node]);
    }
    [[nodiscard]] std::size_t edges() const noexcept { return edges_.size(); }
    /// To the node that is being made.
    void add(const Edge& edge) { edges_.push_back(edge); }
    /// The node is made; the next one begins.
    void closeNode() { offsets_.push_back(edges_.size()); }

  private:
    std::vector<std::size_t> offsets_{0};
    std::vector<Edge> edges_;
};

/// The ways of an automaton through contexts, in which nothing is left to be decided: each path from start to
/// accept is a string with a match, and each such string has a path. Every node lies on one. Edges without
/// a character lead to nodes of lower numbers.
struct Graph {
    EdgeLists edges{};
    std::uint32_t start = 0;
    std::uint32_t accept = 0;
    /// Nodes that the edges of a mark have become, since they consume nothing and lead back.
    std::vector<std::pair<std::uint32_t, Mark>> marks{};
    /// Whether every string has its path: false when there was too much to look at.
    bool isComplete = true;
    /// Whether every path is a string with a match: false when lookarounds and boundaries were left out.
    bool isExact = true;

    [[nodiscard]] bool isEmpty() const noexcept { return edges.size() == 0; }
};

/// What stands around a match.
enum class Surroundings : std::uint8_t {
    Nothing, ///< the match is the text
    Text,    ///< any text may stand in front of it and behind it
};

[[nodiscard]] Graph explore(const Nfa& nfa, const Alphabet& alphabet,
                            const std::vector<std::uint32_t>& weights, Surroundings surroundings,
                            Conditions conditions);

/// The same with all edges the other way round: node n of it is node size() - 1 - n of the other.
[[nodiscard]] Graph reversed(const Graph& graph);

/// For each node the number of its strongly connected component. Edges lead to components of lower numbers.
/// With `silent` only the edges without a character count.
[[nodiscard]] std::vector<std::uint32_t> componentsOf(const EdgeLists& edges, bool silent);

} // namespace specloom::egret
