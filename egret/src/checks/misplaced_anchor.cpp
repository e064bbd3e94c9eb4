#include "egret/checks/misplaced_anchor.h"

#include "egret/analysis/tree.h"
#include "egret/checks/delimiters.h"

#include <algorithm> // std::max

namespace specloom::egret::checks {

namespace {

using Kind = regex::Node::Kind;

class MisplacedAnchors {
  public:
    MisplacedAnchors(const Subject& subject, Findings& findings) : subject_(subject), findings_(findings) {}

    /// `before` and `behind` are whether characters stand on that side of the node in every match.
    void visit(const regex::Node& node, bool before, bool behind) {
        if (node.kind == Kind::TextStart && before)
            findings_.add(node.begin, "'^' cannot hold here, where characters precede it");
        else if (node.kind == Kind::TextEnd && behind)
            findings_.add(node.begin,
                          "'$' cannot hold here, where characters follow: a dollar sign is written '\\$'");
        else if (node.kind == Kind::LookAhead)
            visit(node.children.front(), before, false);
        else if (node.kind == Kind::LookBehind)
            visit(node.children.front(), false, behind);
        else if (node.kind == Kind::Sequence)
            visitSequence(node, before, behind);
        else
            for (const regex::Node& child : node.children)
                visit(child, before, behind);
    }

  private:
    void visitSequence(const regex::Node& node, bool before, bool behind) {
        std::size_t last = 0; // child that has characters in every match
        for (std::size_t i = 0; i < node.children.size(); ++i)
            last = subject_.shortest.of(node.children[i]) > 0 ? i : last;
        for (std::size_t i = 0; i < node.children.size(); ++i) {
            visit(node.children[i], before, behind || last > i);
            before = before || subject_.shortest.of(node.children[i]) > 0;
        }
    }

    const Subject& subject_;
    Findings& findings_;
};

} // namespace

bool isMeantToMatchNothing(const regex::SyntaxTree& tree) {
    std::size_t characters = 0;
    bool hasAnchors = false;
    bool hasMore = false;
    forEachNode(tree.root, [&](const regex::Node& node) {
        characters += node.kind == Kind::Character || node.kind == Kind::Class ? 1 : 0;
        hasMore = hasMore || node.kind == Kind::Repetition ||
                  (node.kind == Kind::Class && tree.sets[node.value].ranges().empty());
        hasAnchors = hasAnchors || node.kind == Kind::TextStart || node.kind == Kind::TextEnd;
    });
    return characters <= 1 && hasAnchors && !hasMore;
}

void findMisplacedAnchor(const Subject& subject, Findings& findings) {
    if (!hasDelimiters(subject.source) && !isMeantToMatchNothing(subject.tree))
        MisplacedAnchors(subject, findings).visit(subject.tree.root, false, false);
}

bool hasMisplacedAnchor(const Subject& subject) {
    Findings findings;
    MisplacedAnchors(subject, findings).visit(subject.tree.root, false, false);
    return !findings.warnings().empty();
}

} // namespace specloom::egret::checks
