#include "egret/checks/anchor_precedence.h"

#include "egret/analysis/anchors.h"
#include "egret/analysis/tree.h"

#include <optional> // std::optional

namespace specloom::egret::checks {

void findAnchorPrecedence(const Subject& subject, Findings& findings) {
    const std::optional<SplitAnchors> split = splitAnchors(subject.tree.root);
    if (!split)
        return;
    const regex::Node& alternation = withoutGroups(subject.tree.root);
    const std::string first = quoted(subject.textOf(alternation.children.front()));
    const std::string last = quoted(subject.textOf(alternation.children.back()));
    std::string message = "The alternatives need a group: ";
    if (split->start)
        message += "'^' belongs to " + first + " only";
    if (split->start && split->end)
        message += ", ";
    if (split->end)
        message += "'$' belongs to " + last + " only";
    findings.add(split->start ? alternation.begin : alternation.children.back().begin, message);
}

} // namespace specloom::egret::checks
