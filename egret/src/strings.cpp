#include "egret/strings.h"

#include "egret/alphabet.h"
#include "egret/graph.h"
#include "egret/nfa.h"
#include "egret/palette.h"
#include "egret/path_search.h"
#include "egret/speller.h"
#include "regex/pattern.h"
#include "regex/syntax.h"

#include <algorithm> // std::ranges::any_of
#include <array>     // std::array
#include <set>       // std::set
#include <utility>   // std::move

namespace specloom::egret {

namespace {

/// Characters of all strings of a covering set.
constexpr std::uint64_t mostCoveringCharacters = 4'000'000;
/// Strings that are made where some may not match, to find one that does.
constexpr int triesOfInexact = 200;

/// Numbers that look drawn, the same each time (the generator SplitMix64).
class FixedDraws {
  public:
    std::uint64_t operator()(std::uint64_t bound) {
        std::uint64_t bits = state_ += 0x9E3779B97F4A7C15U;
        bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9U;
        bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBU;
        return (bits ^ (bits >> 31U)) % bound;
    }

  private:
    std::uint64_t state_ = 0;
};

} // namespace

/// Graphs are tried in this order: without text around the match, with it, and, where those were cut short,
/// as if boundaries and lookarounds always held, which makes strings that may not match.
struct Strings::Impl {
    /// A graph that is made when it is asked for, and the paths of the lengths that were asked for last.
    struct LazyGraph {
        Surroundings surroundings;
        Conditions conditions;
        std::optional<Graph> graph{};
        std::optional<RandomPaths> paths{};
        Lengths lengths{};
    };

    explicit Impl(std::string_view source)
        : pattern(source), nfa(compile(regex::parse(source))), alphabet(alphabetOf(nfa)) {
        for (const regex::CharSet& symbol : alphabet.symbols) {
            palettes.emplace_back(symbol);
            weights.push_back(palettes.back().weight());
        }
        if (canDecide()) {
            graphs.push_back({Surroundings::Nothing, Conditions::Hold});
            graphs.push_back({Surroundings::Text, Conditions::Hold});
        }
        graphs.push_back({Surroundings::Nothing, Conditions::Ignored});
        graphs.push_back({Surroundings::Text, Conditions::Ignored});
    }

    [[nodiscard]] bool hasConditions() const { return nfa.hasBoundaries || !nfa.lookarounds.empty(); }
    [[nodiscard]] bool canDecide() const { return alphabet.isPartition || !hasConditions(); }

    [[nodiscard]] const Graph& graphOf(LazyGraph& lazy) const {
        if (!lazy.graph)
            lazy.graph = explore(nfa, alphabet, weights, lazy.surroundings, lazy.conditions);
        return *lazy.graph;
    }

    [[nodiscard]] const RandomPaths& pathsOf(LazyGraph& lazy, const Lengths& lengths) const {
        if (!lazy.paths || lazy.lengths.min != lengths.min || lazy.lengths.max != lengths.max) {
            lazy.paths.emplace(graphOf(lazy), lengths);
            lazy.lengths = lengths;
        }
        return *lazy.paths;
    }

    /// Whether what no earlier graph had is not in this one either.
    [[nodiscard]] bool isSettled(const LazyGraph& lazy) const {
        const auto isCut = [](const LazyGraph& other) { return other.graph && !other.graph->isComplete; };
        return lazy.conditions == Conditions::Ignored && canDecide() && !std::ranges::any_of(graphs, isCut);
    }

    [[nodiscard]] bool matches(const std::string& text) const {
        return pattern.search(text) == regex::Pattern::Outcome::Match;
    }

    regex::Pattern pattern;
    Nfa nfa;
    Alphabet alphabet;
    std::vector<Palette> palettes;
    std::vector<std::uint32_t> weights;
    /// Remembered only: each is the same whenever it is made.
    mutable std::vector<LazyGraph> graphs;
};

Strings::Strings(std::string_view pattern) : impl_(new Impl(pattern)) {}
Strings::Strings(Strings&&) noexcept = default;
Strings& Strings::operator=(Strings&&) noexcept = default;
Strings::~Strings() = default;

std::vector<std::string> Strings::covering(const Lengths& lengths) const {
    struct Text {
        std::size_t length;
        std::string text;
    };
    std::vector<Text> texts;
    std::set<std::string> known;
    Marks covered(impl_->nfa.marks, false);
    std::uint64_t budget = mostCoveringCharacters;
    FixedDraws fixed;
    const Draw draw = [&fixed](std::uint64_t bound) { return fixed(bound); };
    for (Impl::LazyGraph& lazy : impl_->graphs) {
        if (impl_->isSettled(lazy))
            break;
        const Graph& graph = impl_->graphOf(lazy);
        Marks marks = covered;
        for (const Path& path : coveringPaths(graph, lengths, marks, budget)) {
            Speller speller(impl_->palettes, draw);
            for (const std::uint32_t symbol : path)
                speller.add(symbol);
            std::string text = speller.take();
            if (path.size() >= lengths.min && path.size() <= lengths.max && impl_->matches(text) &&
                known.insert(text).second)
                texts.push_back({path.size(), std::move(text)});
        }
        covered = marks;
    }
    std::ranges::stable_sort(texts, {}, &Text::length);
    std::vector<std::string> result;
    for (Text& text : texts)
        result.push_back(std::move(text.text));
    return result;
}

std::optional<std::string> Strings::random(const Lengths& lengths, const Draw& draw) const {
    for (Impl::LazyGraph& lazy : impl_->graphs) {
        if (impl_->isSettled(lazy))
            break;
        const RandomPaths& paths = impl_->pathsOf(lazy, lengths);
        if (paths.isEmpty())
            continue;
        const int tries = lazy.conditions == Conditions::Ignored ? triesOfInexact : 1;
        for (int i = 0; i < tries; ++i) {
            Speller speller(impl_->palettes, draw);
            paths.walk(draw, speller);
            std::string text = speller.take();
            if (impl_->matches(text))
                return text;
        }
    }
    return std::nullopt;
}

} // namespace specloom::egret
