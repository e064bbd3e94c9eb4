#pragma once

#include "egret/analysis/text_automaton.h"
#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// The automaton of a pattern, and what its construction needs. It stays where it is, since its parts refer
/// to one another.
class Language {
  public:
    /// Throws BudgetSpent.
    Language(const Subject& subject, Budget& budget) : Language(subject.tree, budget) {}
    Language(const regex::SyntaxTree& tree, Budget& budget)
        : trees{&tree}, alphabet(trees, budget), automaton(restricted({}, budget)) {}
    Language(const Language&) = delete;
    Language& operator=(const Language&) = delete;

    /// The automaton of what is left of the pattern.
    [[nodiscard]] TextAutomaton restricted(const Restriction& restriction, Budget& budget) const {
        return {alphabet, positionAutomaton(alphabet, 0, trees[0]->root, budget, restriction), budget};
    }

    const regex::SyntaxTree* const trees[1];
    const Alphabet alphabet;
    const TextAutomaton automaton;
};

} // namespace specloom::egret::checks
