#include "egret/checks/matches_everything.h"

#include "egret/analysis/tree.h"
#include "egret/checks/language.h"

#include <algorithm> // std::ranges::any_of

namespace specloom::egret::checks {

bool isWithoutEffect(const Subject& subject) {
    bool narrow = false;
    forEachNode(subject.tree.root, [&](const regex::Node& node) {
        narrow = narrow || node.kind == regex::Node::Kind::Character || isNarrow(node, subject.tree);
    });
    if (!narrow) // ".*" says what it does
        return false;
    Budget budget;
    const Language language(subject, budget);
    const auto& edges = language.automaton.edgesOf(TextAutomaton::start());
    return language.automaton.isExact() && std::ranges::any_of(edges, [&](const TextAutomaton::Edge& edge) {
               return edge.to == TextAutomaton::found();
           });
}

void findMatchesEverything(const Subject& subject, Findings& findings) {
    if (std::ranges::any_of(alternativesOf(subject.tree.root), isEmpty) || !isWithoutEffect(subject))
        return;
    findings.add(
        0, "Every text matches the pattern, which may match nothing at any place: '^' and '$' around it "
           "would hold the whole text");
}

} // namespace specloom::egret::checks
