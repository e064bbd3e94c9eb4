#include "egret/checks/exponential_repeat.h"

#include "egret/analysis/ambiguity.h"
#include "egret/analysis/tree.h"

namespace specloom::egret::checks {

namespace {

using Kind = regex::Node::Kind;

class ExponentialRepeats {
  public:
    ExponentialRepeats(const Subject& subject, Findings& findings)
        : subject_(subject), findings_(findings), trees_{&subject.tree}, alphabet_(trees_, budget_) {}

    /// Says whether it has found something below the node. `free` is whether the match may end behind the
    /// node whatever follows there: then nothing makes an engine go back.
    bool visit(const regex::Node& node, bool free) {
        switch (node.kind) {
        case Kind::Sequence:
            return visitSequence(node, free);
        case Kind::Repetition:
            return visitRepetition(node, free);
        case Kind::LookAhead:
        case Kind::LookBehind:
            return visit(node.children.front(), true);
        default:
            return visitAll(node, free);
        }
    }

  private:
    bool visitAll(const regex::Node& node, bool free) {
        bool found = false;
        for (const regex::Node& child : node.children)
            found = visit(child, free) || found;
        return found;
    }

    bool visitSequence(const regex::Node& node, bool free) {
        bool found = false;
        for (std::size_t i = node.children.size(); i-- > 0;) {
            const regex::Node& child = node.children[i];
            found = visit(child, free) || found;
            free = free && !child.zeroWidth && subject_.shortest.of(child) == 0;
        }
        return found;
    }

    bool visitRepetition(const regex::Node& node, bool free) {
        const regex::Node& body = node.children.front();
        if (visit(body, free && node.min <= 1))
            return true;
        if (node.max != regex::unbounded || free)
            return false;
        const PositionAutomaton automaton = positionAutomaton(alphabet_, 0, node, budget_);
        // What assertions in it forbid is not known.
        if (!automaton.exact || !isExponentiallyAmbiguous(automaton, alphabet_, budget_))
            return false;
        findings_.add(node.begin,
                      "The rounds of " + quoted(subject_.textOf(node)) +
                          " can read one text in several ways: engines that go back take exponential "
                          "time on some texts");
        return true;
    }

    const Subject& subject_;
    Findings& findings_;
    Budget budget_;
    const regex::SyntaxTree* const trees_[1];
    const Alphabet alphabet_;
};

} // namespace

void findExponentialRepeat(const Subject& subject, Findings& findings) {
    ExponentialRepeats(subject, findings).visit(subject.tree.root, true);
}

} // namespace specloom::egret::checks
