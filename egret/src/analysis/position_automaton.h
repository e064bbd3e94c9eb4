#pragma once

#include "egret/analysis/alphabet.h"

#include <array>   // std::array
#include <cstdint> // std::uint32_t, std::uint8_t
#include <vector>  // std::vector

namespace specloom::egret::checks {

/// The alternatives of one alternation that an automaton is to have; the others are left out.
struct Restriction {
    const regex::Node* alternation = nullptr;
    std::vector<bool> kept{};
};

/// The automaton of an expression that has a state for each place of a character (the construction of
/// Glushkov), counted repeats written out. It takes the ways that a backtracking engine tries (ECMA-262,
/// section 22.2.2.3.1: no further round of a repeat is empty), and knows where there are several for the same
/// step.
struct PositionAutomaton {
    /// A way into a place or out of one.
    struct Way {
        std::uint32_t position;
        bool atEdge;  ///< only from the beginning of the text, or to its end
        bool several; ///< there are more ways than one
    };
    struct Step {
        std::uint32_t to;
        bool several;
    };
    /// Ways to match no characters, 2 for more: without conditions, only at the beginning of the text, only
    /// at its end, only in the empty text.
    using EmptyWays = std::array<std::uint8_t, 4>;

    std::vector<Alphabet::Label> labels{}; ///< of the places
    std::vector<std::vector<Step>> steps{};
    std::vector<Way> first{};
    std::vector<Way> last{};
    EmptyWays empty{};
    /// Whether it has no word boundaries and lookarounds. Those are taken to hold, so that the automaton
    /// matches too much.
    bool exact = true;
};

inline constexpr std::size_t freely = 0;
inline constexpr std::size_t atStart = 1;
inline constexpr std::size_t atEnd = 2;
inline constexpr std::size_t inEmptyText = 3;

/// The automaton of a node of the tree of that index in the alphabet. Throws BudgetSpent.
[[nodiscard]] PositionAutomaton positionAutomaton(const Alphabet& alphabet, std::size_t tree,
                                                  const regex::Node& node, Budget& budget,
                                                  const Restriction& restriction = {});

} // namespace specloom::egret::checks
