#include "regex/automaton.h"

#include <algorithm> // std::ranges::sort, std::unique
#include <utility>   // std::move

namespace specloom::regex {

namespace {

using Code = Instruction::Code;
using Kind = Node::Kind;

struct Lookaround {
    const Node* body;
    Direction direction;
};

/// What the nodes of a pattern use. The walk is as deep as the pattern, which is limited.
struct Uses {
    std::vector<char32_t> characters{};
    std::vector<Lookaround> lookarounds{}; ///< in the order of their numbers
    bool boundaries = false;

    void visit(const Node& node) {
        for (const Node& child : node.children)
            visit(child);
        if (node.kind == Kind::Character)
            characters.push_back(node.value);
        else if (node.kind == Kind::WordBoundary)
            boundaries = true;
        else if (node.kind == Kind::LookAhead)
            lookarounds.push_back({&node.children.front(), Direction::Backward});
        else if (node.kind == Kind::LookBehind)
            lookarounds.push_back({&node.children.front(), Direction::Forward});
    }
};

Uses usesOf(const SyntaxTree& tree) {
    Uses uses;
    uses.visit(tree.root);
    std::ranges::sort(uses.characters);
    uses.characters.erase(std::unique(uses.characters.begin(), uses.characters.end()), uses.characters.end());
    return uses;
}

/// Writes from the end to the beginning, so that each instruction knows the next when it is made.
class Compiler {
  public:
    Compiler(const CharacterClasses& classes, Direction direction) : classes_(classes) {
        automaton_.direction = direction;
    }

    Automaton compile(const Node& root) {
        automaton_.instructions.reserve(root.size + 1);
        automaton_.start = emit(root, add({.code = Code::Match}));
        return std::move(automaton_);
    }

  private:
    std::uint32_t add(Instruction instruction) {
        automaton_.instructions.push_back(instruction);
        return static_cast<std::uint32_t>(automaton_.instructions.size() - 1);
    }

    std::uint32_t condition(Instruction instruction) {
        automaton_.hasConditions = true;
        return add(instruction);
    }

    std::uint32_t textEdge(bool start, std::uint32_t next) {
        if (start == (automaton_.direction == Direction::Forward))
            return add({.code = Code::ScanStart, .next = next});
        return condition({.code = Code::ScanEnd, .next = next});
    }

    std::uint32_t emit(const Node& node, std::uint32_t next) {
        switch (node.kind) {
        case Kind::Sequence:
            return sequence(node, next);
        case Kind::Alternation:
            return alternation(node, next);
        case Kind::Repetition:
            return repetition(node, next);
        case Kind::Group:
            return emit(node.children.front(), next);
        case Kind::Character:
            return add({.code = Code::Character, .next = next, .other = classes_.of(node.value)});
        case Kind::Class:
            return add({.code = Code::Set, .next = next, .other = node.value});
        case Kind::TextStart:
        case Kind::TextEnd:
            return textEdge(node.kind == Kind::TextStart, next);
        case Kind::WordBoundary:
            automaton_.hasBoundaries = true;
            return condition({.code = Code::Boundary, .negated = node.negated, .next = next});
        case Kind::LookAhead:
        case Kind::LookBehind:
            break;
        }
        return condition(
            {.code = Code::Lookaround, .negated = node.negated, .next = next, .other = node.value});
    }

    std::uint32_t sequence(const Node& node, std::uint32_t next) {
        if (automaton_.direction == Direction::Backward) {
            for (const Node& child : node.children)
                next = emit(child, next);
            return next;
        }
        for (auto child = node.children.rbegin(); child != node.children.rend(); ++child)
            next = emit(*child, next);
        return next;
    }

    std::uint32_t alternation(const Node& node, std::uint32_t next) {
        std::uint32_t entry = emit(node.children.back(), next);
        for (auto child = node.children.rbegin() + 1; child != node.children.rend(); ++child) {
            const std::uint32_t other = entry;
            entry = add({.code = Code::Split, .next = emit(*child, next), .other = other});
        }
        return entry;
    }

    std::uint32_t repetition(const Node& node, std::uint32_t next) {
        const Node& body = node.children.front();
        // What consumes nothing does no more the second time than the first.
        if (body.zeroWidth)
            return node.min == 0 ? next : emit(body, next);
        std::uint32_t mandatory = node.min;
        std::uint32_t entry = next;
        if (node.max == unbounded) {
            const std::uint32_t loop = add({.code = Code::Split, .other = next});
            const std::uint32_t round = emit(body, loop);
            automaton_.instructions[loop].next = round;
            // The loop is the last of the mandatory rounds when there is one.
            entry = mandatory == 0 ? loop : round;
            mandatory -= mandatory == 0 ? 0 : 1;
        } else {
            for (std::uint32_t i = node.min; i < node.max; ++i)
                entry = add({.code = Code::Split, .next = emit(body, entry), .other = next});
        }
        for (std::uint32_t i = 0; i < mandatory; ++i)
            entry = emit(body, entry);
        return entry;
    }

    const CharacterClasses& classes_;
    Automaton automaton_;
};

} // namespace

AutomatonSet compile(const SyntaxTree& tree) {
    const Uses uses = usesOf(tree);
    std::vector<CharSet> sets = tree.sets;
    if (uses.boundaries)
        sets.push_back(wordSet());
    AutomatonSet result{.classes = CharacterClasses(sets, uses.characters)};
    result.wordClasses.resize(result.classes.count());
    for (std::uint32_t i = 0; uses.boundaries && i < result.classes.count(); ++i)
        result.wordClasses[i] = result.classes.contains(static_cast<std::uint32_t>(sets.size() - 1), i);
    for (const Lookaround& lookaround : uses.lookarounds)
        result.lookarounds.push_back(
            Compiler(result.classes, lookaround.direction).compile(*lookaround.body));
    result.main = Compiler(result.classes, Direction::Forward).compile(tree.root);
    return result;
}

} // namespace specloom::regex
