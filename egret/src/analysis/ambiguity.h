#pragma once

#include "egret/analysis/position_automaton.h"

namespace specloom::egret::checks {

/// Whether a text leads round in the automaton in more than one way, so that its repetition can be read in
/// exponentially many ways. (The criterion EDA of A. Weber and H. Seidl, "On the degree of ambiguity of
/// finite automata", 1991: a strongly connected part of the product of the automaton with itself holds a
/// state paired with itself, and ways that part.) Throws BudgetSpent.
[[nodiscard]] bool isExponentiallyAmbiguous(const PositionAutomaton& automaton, const Alphabet& alphabet,
                                            Budget& budget);

} // namespace specloom::egret::checks
