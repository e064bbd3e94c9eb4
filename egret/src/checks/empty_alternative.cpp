#include "egret/checks/empty_alternative.h"

#include "egret/analysis/anchors.h"
#include "egret/analysis/tree.h"

#include <algorithm> // std::ranges::count_if

namespace specloom::egret::checks {

namespace {

using Kind = regex::Node::Kind;

/// The alternation that is all of an anchored pattern, as in "^(|a|b)$": the empty text is meant there. Null
/// for none.
const regex::Node* wholeAlternation(const regex::Node& root) {
    const std::span<const regex::Node> parts = partsOf(root);
    if (parts.size() != 3 || parts.front().kind != Kind::TextStart || parts.back().kind != Kind::TextEnd)
        return nullptr;
    return &withoutGroups(parts[1]);
}

/// The empty alternative, if there is one that is hardly meant. Null for none.
const regex::Node* emptyAlternative(const regex::Node& alternation, bool whole) {
    const std::span<const regex::Node> alternatives(alternation.children);
    if (whole && std::ranges::count_if(alternatives, isEmpty) == 1 &&
        (isEmpty(alternatives.front()) || isEmpty(alternatives.back())))
        return nullptr;
    for (const regex::Node& alternative : alternatives)
        if (isEmpty(alternative))
            return &alternative;
    return nullptr;
}

} // namespace

void findEmptyAlternative(const Subject& subject, Findings& findings) {
    const regex::Node* whole = wholeAlternation(subject.tree.root);
    forEachNode(subject.tree.root, [&](const regex::Node& node) {
        if (node.kind != Kind::Alternation)
            return;
        if (const regex::Node* empty = emptyAlternative(node, &node == whole))
            findings.add(empty->begin, "An alternative of " + quoted(subject.textOf(node)) +
                                           " is empty: '?' behind a group says that it may be missing");
    });
}

} // namespace specloom::egret::checks
