#pragma once

#include "regex/charset.h"
#include "regex/syntax.h"

#include <cstdint> // std::uint32_t
#include <limits>  // std::numeric_limits
#include <span>    // std::span
#include <vector>  // std::vector

namespace specloom::egret {

/// Of the edges that a covering set of strings shall go through: numbers that the copies of an edge share,
/// which a counted repetition has for each of its rounds.
using Mark = std::uint32_t;
inline constexpr Mark noMark = 0;
/// Of the beginning, which every string goes through.
inline constexpr Mark startMark = 1;
/// Of the edges into the text around a match.
inline constexpr Mark paddingMark = std::numeric_limits<Mark>::max();

struct State {
    enum class Kind : std::uint8_t {
        Match,
        Split,        ///< to each of its branches
        Character,    ///< of the label `value`, then next
        TextStart,    ///< holds at the beginning of the text
        TextEnd,      ///< holds at its end
        WordBoundary, ///< the opposite when negated
        Lookaround,   ///< that of the number `value` holds; the opposite when negated
    };
    Kind kind = Kind::Match;
    bool negated = false;
    std::uint32_t next = 0;  ///< of a split: its first branch
    std::uint32_t value = 0; ///< of a split: how many branches it has
};

struct Branch {
    std::uint32_t target;
    Mark mark;
    /// How often it is drawn, compared with its siblings; 0 when only lengths can ask for it.
    std::uint32_t weight;
};

/// A nondeterministic automaton of a pattern (Thompson's construction), in which an alternation is one split
/// and a repetition is left and gone on with by edges that tell whether it is the first time. The bodies of
/// lookarounds are automata of their own; all are met forward.
struct Nfa {
    struct Body {
        std::uint32_t start;
        std::uint32_t first; ///< of its states,
        std::uint32_t end;   ///< which end before this one
        bool behind;         ///< of a lookbehind
    };
    std::vector<State> states{};
    std::vector<Branch> branches{};
    std::vector<Body> lookarounds{}; ///< by their numbers in the tree
    std::vector<regex::CharSet> labels{};
    std::uint32_t start = 0;
    /// The same with text in front of the match. Behind it there is a split with an edge of paddingMark.
    std::uint32_t paddedStart = 0;
    std::uint32_t paddingLabel = 0; ///< of the states that consume such text, and of no others
    std::uint32_t marks = 0;        ///< how many numbers are given away, noMark and startMark included
    bool hasBoundaries = false;

    [[nodiscard]] std::span<const Branch> branchesOf(const State& split) const {
        return std::span(branches).subspan(split.next, split.value);
    }
};

[[nodiscard]] Nfa compile(const regex::SyntaxTree& tree);

} // namespace specloom::egret
