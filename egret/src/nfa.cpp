#include "egret/nfa.h"

#include <algorithm>     // std::max, std::min
#include <cstddef>       // std::size_t
#include <unordered_map> // std::unordered_map
#include <utility>       // std::move

namespace specloom::egret {

namespace {

using regex::Node;
using NodeKind = regex::Node::Kind;
using StateKind = State::Kind;

/// Rounds that are drawn beyond those that a repetition demands: of one character, and of more.
constexpr std::uint32_t roundsOfCharacters = 8;
constexpr std::uint32_t roundsOfGroups = 3;

bool isOneCharacter(const Node& node) {
    const Node* inner = &node;
    while (inner->kind == NodeKind::Group)
        inner = &inner->children.front();
    return inner->kind == NodeKind::Character || inner->kind == NodeKind::Class;
}

/// Writes from the end to the beginning, so that each state knows the next when it is made. Its rounds are as
/// deep as the tree, which is limited.
class NfaCompiler {
  public:
    explicit NfaCompiler(const regex::SyntaxTree& tree) : tree_(tree) {
        nfa_.labels = tree.sets;
        nfa_.marks = startMark + 1;
        nfa_.paddingLabel = labelOf({{0, regex::lastCodePoint}});
    }

    Nfa compile() {
        bodies(tree_.root);
        const std::uint32_t match = add({.kind = StateKind::Match});
        nfa_.start = emit(tree_.root, paddingBefore(match));
        nfa_.paddedStart = paddingBefore(nfa_.start);
        return std::move(nfa_);
    }

  private:
    /// The marks of a repetition, counted from its first.
    enum RepetitionMark : Mark { Skipped, Entered, Continued, Left, Exhausted, repetitionMarks };

    std::uint32_t add(State state) {
        nfa_.states.push_back(state);
        return static_cast<std::uint32_t>(nfa_.states.size() - 1);
    }

    std::uint32_t addSplit(std::initializer_list<Branch> branches) {
        const auto first = static_cast<std::uint32_t>(nfa_.branches.size());
        nfa_.branches.insert(nfa_.branches.end(), branches);
        return add(
            {.kind = StateKind::Split, .next = first, .value = static_cast<std::uint32_t>(branches.size())});
    }

    std::uint32_t paddingBefore(std::uint32_t next) {
        const std::uint32_t padding = add({.kind = StateKind::Character, .value = nfa_.paddingLabel});
        const std::uint32_t split = addSplit({{next, noMark, 1}, {padding, paddingMark, 0}});
        nfa_.states[padding].next = split;
        return split;
    }

    std::uint32_t labelOf(const regex::CharSet& set) {
        nfa_.labels.push_back(set);
        return static_cast<std::uint32_t>(nfa_.labels.size() - 1);
    }

    /// The automata of the lookarounds, inner ones first, which is the order of their numbers.
    void bodies(const Node& node) {
        for (const Node& child : node.children)
            bodies(child);
        if (node.kind != NodeKind::LookAhead && node.kind != NodeKind::LookBehind)
            return;
        const auto first = static_cast<std::uint32_t>(nfa_.states.size());
        const std::uint32_t start = emit(node.children.front(), add({.kind = StateKind::Match}));
        nfa_.lookarounds.push_back({start, first, static_cast<std::uint32_t>(nfa_.states.size()),
                                    node.kind == NodeKind::LookBehind});
    }

    std::uint32_t emit(const Node& node, std::uint32_t next) {
        switch (node.kind) {
        case NodeKind::Sequence:
            for (auto child = node.children.rbegin(); child != node.children.rend(); ++child)
                next = emit(*child, next);
            return next;
        case NodeKind::Alternation:
            return alternation(node, next);
        case NodeKind::Repetition:
            return repetition(node, next);
        case NodeKind::Group:
            return emit(node.children.front(), next);
        case NodeKind::Character:
            return add({.kind = StateKind::Character, .next = next, .value = labelOfCharacter(node.value)});
        case NodeKind::Class:
            return add({.kind = StateKind::Character, .next = next, .value = node.value});
        case NodeKind::TextStart:
            return add({.kind = StateKind::TextStart, .next = next});
        case NodeKind::TextEnd:
            return add({.kind = StateKind::TextEnd, .next = next});
        case NodeKind::WordBoundary:
            nfa_.hasBoundaries = true;
            return add({.kind = StateKind::WordBoundary, .negated = node.negated, .next = next});
        case NodeKind::LookAhead:
        case NodeKind::LookBehind:
            break;
        }
        return add(
            {.kind = StateKind::Lookaround, .negated = node.negated, .next = next, .value = node.value});
    }

    std::uint32_t labelOfCharacter(char32_t character) {
        const auto [place, isNew] = characters_.try_emplace(character, 0);
        if (isNew)
            place->second = labelOf({{character, character}});
        return place->second;
    }

    /// The first of the marks of a node, which has so many.
    Mark marksOf(const Node& node, std::size_t count) {
        const auto [place, isNew] = marks_.try_emplace(&node, nfa_.marks);
        if (isNew)
            nfa_.marks += static_cast<Mark>(count);
        return place->second;
    }

    std::uint32_t alternation(const Node& node, std::uint32_t next) {
        Mark mark = marksOf(node, node.children.size());
        std::vector<Branch> branches;
        for (const Node& child : node.children)
            branches.push_back({emit(child, next), mark++, 1});
        const auto first = static_cast<std::uint32_t>(nfa_.branches.size());
        nfa_.branches.insert(nfa_.branches.end(), branches.begin(), branches.end());
        return add(
            {.kind = StateKind::Split, .next = first, .value = static_cast<std::uint32_t>(branches.size())});
    }

    std::uint32_t repetition(const Node& node, std::uint32_t next) {
        const Node& body = node.children.front();
        // What consumes nothing does no more the second time than the first.
        if (body.zeroWidth)
            return node.min == 0 ? next : emit(body, next);
        std::uint32_t mandatory = node.min;
        std::uint32_t entry = 0;
        if (node.max == regex::unbounded) {
            entry = loop(node, next);
            mandatory -= mandatory == 0 ? 0 : 1;
        } else {
            entry = optionalRounds(node, next);
        }
        for (std::uint32_t i = 0; i < mandatory; ++i)
            entry = emit(body, entry);
        return entry;
    }

    /// The last of the rounds that are demanded when there is one, and any number of rounds behind it.
    std::uint32_t loop(const Node& node, std::uint32_t next) {
        const Node& body = node.children.front();
        const Mark mark = marksOf(node, repetitionMarks);
        const bool small = isOneCharacter(body);
        const std::uint32_t back =
            addSplit({{0, mark + Continued, small ? 5U : 1U}, {next, mark + Left, small ? 1U : 2U}});
        const std::uint32_t round = emit(body, back);
        nfa_.branches[nfa_.states[back].next].target = round;
        if (node.min > 0)
            return round;
        return addSplit({{round, mark + Entered, small ? 4U : 1U}, {next, mark + Skipped, 1}});
    }

    /// The rounds beyond those that are demanded, each of which may be the last: as many are drawn as any.
    std::uint32_t optionalRounds(const Node& node, std::uint32_t next) {
        if (node.min == node.max)
            return next;
        const Node& body = node.children.front();
        const Mark mark = marksOf(node, repetitionMarks);
        const std::uint32_t more = isOneCharacter(body) ? roundsOfCharacters : roundsOfGroups;
        const std::uint32_t drawn = std::min(node.max - node.min, more);
        std::uint32_t entry = next;
        if (node.max - node.min > 1)
            entry = addSplit({{next, mark + Exhausted, 1}});
        for (std::uint32_t done = node.max - node.min; done-- > 0;) {
            const bool first = done == 0;
            entry = addSplit(
                {{emit(body, entry), mark + (first ? Entered : Continued), done < drawn ? drawn - done : 0},
                 {next, mark + (first ? Skipped : Left), 1}});
        }
        return entry;
    }

    const regex::SyntaxTree& tree_;
    Nfa nfa_;
    std::unordered_map<char32_t, std::uint32_t> characters_;
    std::unordered_map<const Node*, Mark> marks_;
};

} // namespace

Nfa compile(const regex::SyntaxTree& tree) {
    return NfaCompiler(tree).compile();
}

} // namespace specloom::egret
