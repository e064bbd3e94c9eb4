#pragma once

#include "egret/analysis/position_automaton.h"
#include "egret/strings.h"

#include <cstdint> // std::uint32_t
#include <vector>  // std::vector

namespace specloom::egret::checks {

/// An automaton for the texts in which a search with an expression finds something: for whole texts, whether
/// or not the expression is anchored. It matches too much where `exact` is false.
class TextAutomaton {
  public:
    using State = std::uint32_t;
    struct Edge {
        State to;
        Alphabet::Label label;
    };

    TextAutomaton(const Alphabet& alphabet, const PositionAutomaton& positions, Budget& budget);

    [[nodiscard]] const Alphabet& alphabet() const noexcept { return alphabet_; }
    [[nodiscard]] std::uint32_t stateCount() const noexcept {
        return static_cast<std::uint32_t>(edges_.size());
    }
    /// In front of the text.
    [[nodiscard]] static State start() noexcept { return 0; }
    /// Something was found: whatever follows, the text is matched.
    [[nodiscard]] static State found() noexcept { return 1; }
    /// Each leads to where a match can still be reached.
    [[nodiscard]] const std::vector<Edge>& edgesOf(State state) const noexcept { return edges_[state]; }
    /// Whether a text that ends here is matched.
    [[nodiscard]] bool accepts(State state) const noexcept { return accepts_[state]; }
    [[nodiscard]] bool isExact() const noexcept { return exact_; }

  private:
    void addPlaces(const PositionAutomaton& positions, Budget& budget);
    void dropDeadEnds(Budget& budget);

    const Alphabet& alphabet_;
    std::vector<std::vector<Edge>> edges_;
    std::vector<bool> accepts_;
    bool exact_;
};

/// Whether any text is matched.
[[nodiscard]] bool matchesAnything(const TextAutomaton& automaton);

// The following throw BudgetSpent.

/// Whether any text is matched by both, which have one alphabet.
[[nodiscard]] bool haveCommonText(const TextAutomaton& a, const TextAutomaton& b, Budget& budget);

/// Whether each text that `part` matches is matched by `whole` too. Both have one alphabet.
[[nodiscard]] bool isIncluded(const TextAutomaton& part, const TextAutomaton& whole, Budget& budget);

/// Whether any matched text has one of these lengths.
[[nodiscard]] bool hasLength(const TextAutomaton& automaton, const Lengths& lengths, Budget& budget);

} // namespace specloom::egret::checks
