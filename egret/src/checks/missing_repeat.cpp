#include "egret/checks/missing_repeat.h"

#include "egret/analysis/tree.h"
#include "egret/checks/language.h"

namespace specloom::egret::checks {

void findMissingRepeat(const Subject& subject, Findings& findings) {
    const Lengths& lengths = subject.use.lengths;
    // With a lower bound above 1 the pattern contradicts it.
    if (lengths.max == UINT64_MAX || lengths.max < 2 || lengths.min > 1)
        return;
    const regex::Node* last = nullptr;
    forEachNode(subject.tree.root, [&](const regex::Node& node) {
        if (node.kind == regex::Node::Kind::Class)
            last = &node;
    });
    Budget budget;
    if (last == nullptr)
        return;
    const Language language(subject, budget);
    if (hasLength(language.automaton, {1, 1}, budget) &&
        !hasLength(language.automaton, {2, lengths.max}, budget))
        findings.add(last->begin, quoted(subject.textOf(*last)) +
                                      " takes one character, while maxLength is " +
                                      std::to_string(lengths.max) + ": a quantifier seems to be missing");
}

} // namespace specloom::egret::checks
