// What checks ask of automata, for many small patterns, against what the matcher and an engine that goes back
// do.

#include "egret/analysis/ambiguity.h"
#include "egret/analysis/text_automaton.h"
#include "regex/pattern.h"

#include <cstdint>    // std::uint32_t, std::uint64_t
#include <functional> // std::function
#include <random>     // std::mt19937
#include <string>     // std::string
#include <vector>     // std::vector

#include <gtest/gtest.h>

namespace specloom::egret::checks {
namespace {

using regex::Node;

/// Patterns of the letters a and b, drawn.
class Patterns {
  public:
    explicit Patterns(std::uint32_t seed) : engine_(seed) {}

    std::string next(int depth) {
        switch (engine_() % (depth == 0 ? 3U : 10U)) {
        case 0:
            return "a";
        case 1:
            return "b";
        case 2:
            return "[ab]";
        case 3:
        case 4:
            return next(depth - 1) + next(depth - 1);
        case 5:
            return "(?:" + next(depth - 1) + "|" + next(depth - 1) + ")";
        case 6:
            return "(?:" + next(depth - 1) + ")*";
        case 7:
            return "(?:" + next(depth - 1) + ")+";
        case 8:
            return "(?:" + next(depth - 1) + ")?";
        default:
            return "(?:" + next(depth - 1) + "){1,2}";
        }
    }
    std::string anchored(int depth) {
        const std::uint32_t anchors = engine_() % 8;
        return ((anchors & 1U) != 0 ? "^" : "") + next(depth) + ((anchors & 2U) != 0 ? "$" : "") +
               (anchors == 7 ? "|a^b|^" + next(1) : "");
    }

  private:
    std::mt19937 engine_;
};

/// All texts of some letters, up to a length.
std::vector<std::string> textsOf(const std::string& letters, std::size_t length) {
    std::vector<std::string> texts{""};
    for (std::size_t i = 0; texts[i].size() < length; ++i)
        for (const char letter : letters)
            texts.push_back(texts[i] + letter);
    return texts;
}

bool finds(const regex::Pattern& pattern, const std::string& text) {
    return pattern.search(text) == regex::Pattern::Outcome::Match;
}

TEST(TextAutomaton, agreesWithTheMatcher) {
    const std::vector<std::string> texts = textsOf("abc", 6); // "c" is in no pattern
    Patterns patterns(1);
    for (int round = 0; round < 1000; ++round) {
        const std::string sources[] = {patterns.anchored(3), patterns.anchored(3)};
        SCOPED_TRACE(sources[0] + "   " + sources[1]);
        const regex::SyntaxTree trees[] = {regex::parse(sources[0]), regex::parse(sources[1])};
        const regex::SyntaxTree* const both[] = {&trees[0], &trees[1]};
        const regex::Pattern one(sources[0]);
        const regex::Pattern other(sources[1]);
        bool included = true;
        bool common = false;
        std::vector<bool> lengths(7);
        for (const std::string& text : texts) {
            included = included && (!finds(one, text) || finds(other, text));
            common = common || (finds(one, text) && finds(other, text));
            lengths[text.size()] = lengths[text.size()] || finds(one, text);
        }
        Budget budget;
        const Alphabet alphabet(both, budget);
        const TextAutomaton first(alphabet, positionAutomaton(alphabet, 0, trees[0].root, budget), budget);
        const TextAutomaton second(alphabet, positionAutomaton(alphabet, 1, trees[1].root, budget), budget);
        // The shortest witness against an inclusion may be longer than the texts tried; for these it is not.
        EXPECT_EQ(isIncluded(first, second, budget), included);
        EXPECT_EQ(haveCommonText(first, second, budget), common);
        for (std::uint64_t i = 0; i < lengths.size(); ++i)
            EXPECT_EQ(hasLength(first, {i, i}, budget), lengths[i]) << i;
    }
}

/// An engine that goes back (ECMA-262, section 22.2.2), with no memory of what has failed.
class BacktrackingEngine {
  public:
    explicit BacktrackingEngine(const regex::SyntaxTree& tree) : tree_(tree) {}

    /// The places it looks at before it knows that the whole text does not match, or `most`.
    std::uint64_t stepsOnFailure(const std::string& text, std::uint64_t most) {
        text_ = text;
        left_ = most;
        match(tree_.root, 0, [this](std::size_t at) { return at == text_.size(); });
        return most - left_;
    }

  private:
    using Rest = std::function<bool(std::size_t)>;

    bool match(const Node& node, std::size_t at, const Rest& rest) {
        if (left_ == 0)
            return true; // gives up
        --left_;
        switch (node.kind) {
        case Node::Kind::Sequence:
            return sequence(node, 0, at, rest);
        case Node::Kind::Alternation:
            for (const Node& child : node.children)
                if (match(child, at, rest))
                    return true;
            return false;
        case Node::Kind::Group:
            return match(node.children.front(), at, rest);
        case Node::Kind::Repetition:
            return repeat(node, 0, at, rest);
        case Node::Kind::Character:
            return at < text_.size() && text_[at] == static_cast<char>(node.value) && rest(at + 1);
        default: // [ab]
            return at < text_.size() && text_[at] != 'c' && rest(at + 1);
        }
    }

    bool sequence(const Node& node, std::size_t child, std::size_t at, const Rest& rest) {
        if (child == node.children.size())
            return rest(at);
        return match(node.children[child], at,
                     [&, child](std::size_t next) { return sequence(node, child + 1, next, rest); });
    }

    bool repeat(const Node& node, std::uint32_t rounds, std::size_t at, const Rest& rest) {
        const auto further = [&, rounds, at](std::size_t next) {
            return (next != at || rounds < node.min) && repeat(node, rounds + 1, next, rest);
        };
        return (rounds < node.max && match(node.children.front(), at, further)) ||
               (rounds >= node.min && rest(at));
    }

    const regex::SyntaxTree& tree_;
    std::string text_;
    std::uint64_t left_ = 0;
};

std::string pumped(const std::string& word, int times) {
    std::string text;
    for (int i = 0; i < times; ++i)
        text += word;
    return text + 'c';
}

/// Whether four more rounds of a word multiply the work as no polynomial that is met here does.
bool explodes(const regex::SyntaxTree& tree) {
    constexpr std::uint64_t most = 1'000'000;
    BacktrackingEngine engine(tree);
    for (const std::string& word : textsOf("ab", 3))
        for (const char* prefix : {"", "a", "b"}) {
            if (word.empty())
                continue;
            const std::uint64_t less = engine.stepsOnFailure(prefix + pumped(word, 8), most);
            const std::uint64_t more = engine.stepsOnFailure(prefix + pumped(word, 12), most);
            if (more == most || more > 10 * less)
                return true;
        }
    return false;
}

TEST(Ambiguity, isThereWhereAnEngineThatGoesBackExplodes) {
    Patterns patterns(2);
    int exponential = 0;
    for (int round = 0; round < 250; ++round) {
        const std::string source = patterns.next(4);
        const regex::SyntaxTree tree = regex::parse(source);
        const regex::SyntaxTree* const trees[] = {&tree};
        Budget budget;
        const Alphabet alphabet(trees, budget);
        const bool ambiguous =
            isExponentiallyAmbiguous(positionAutomaton(alphabet, 0, tree.root, budget), alphabet, budget);
        EXPECT_EQ(ambiguous, explodes(tree)) << source;
        exponential += ambiguous ? 1 : 0;
    }
    EXPECT_GT(exponential, 25);
}

} // namespace
} // namespace specloom::egret::checks
