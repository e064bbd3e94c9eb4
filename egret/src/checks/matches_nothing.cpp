#include "egret/checks/matches_nothing.h"

#include "egret/analysis/tree.h"
#include "egret/checks/language.h"
#include "egret/checks/misplaced_anchor.h"

namespace specloom::egret::checks {

void findMatchesNothing(const Subject& subject, Findings& findings) {
    Budget budget;
    if (hasMisplacedAnchor(subject) || isMeantToMatchNothing(subject.tree))
        return;
    if (!matchesAnything(Language(subject, budget).automaton))
        findings.add(0, "No text matches the pattern");
}

} // namespace specloom::egret::checks
