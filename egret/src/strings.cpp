#include "egret/strings.h"

#include "egret/alphabet.h"
#include "egret/graph.h"
#include "egret/nfa.h"
#include "egret/palette.h"
#include "egret/path_search.h"
#include "egret/speller.h"
#include "regex/pattern.h"
#include "regex/syntax.h"

#include <algorithm> // std::min, std::ranges::any_of, std::ranges::stable_sort
#include <cstddef>   // std::size_t
#include <set>       // std::set
#include <utility>   // std::move, std::pair

namespace specloom::egret {

namespace {

/// Characters of all strings of a covering set.
constexpr std::uint64_t mostCoveringCharacters = 4'000'000;
/// Strings that are made where some may not match, to find one that does.
constexpr int triesOfInexact = 200;

/// Steps of the matcher, as far as they are known before, for all strings of a call.
constexpr std::uint64_t mostJudgingSteps = 200'000'000;

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

namespace {

/// Asks the pattern about strings, and keeps account of what it costs.
class Judge {
  public:
    Judge(const regex::Pattern& pattern, const Nfa& nfa) : pattern_(pattern), states_(nfa.states.size()) {}

    [[nodiscard]] bool isExhausted() const noexcept { return steps_ >= mostJudgingSteps; }

    bool matches(const std::string& text) {
        steps_ += std::min<std::uint64_t>((text.size() + 1) * states_, regex::Pattern::maxSteps);
        return pattern_.search(text) == regex::Pattern::Outcome::Match;
    }

  private:
    const regex::Pattern& pattern_;
    std::uint64_t states_;
    std::uint64_t steps_ = 0;
};

/// The strings of a covering set, each once.
class CoveringSet {
  public:
    void add(std::size_t length, const std::string& text) {
        if (known_.insert(text).second)
            texts_.emplace_back(length, text);
    }
    [[nodiscard]] bool isEmpty() const noexcept { return texts_.empty(); }

    /// The shortest ones first.
    [[nodiscard]] std::vector<std::string> take() {
        std::ranges::stable_sort(texts_, {}, &Text::first);
        std::vector<std::string> result;
        for (Text& text : texts_)
            result.push_back(std::move(text.second));
        return result;
    }

  private:
    using Text = std::pair<std::size_t, std::string>;

    std::vector<Text> texts_;
    std::set<std::string> known_;
};

std::string textOf(const Path& path, const std::vector<Palette>& palettes, const Draw& draw) {
    Speller speller(palettes, draw);
    for (const std::uint32_t symbol : path)
        speller.add(symbol);
    return speller.take();
}

} // namespace

std::vector<std::string> Strings::covering(const Lengths& lengths) const {
    CoveringSet found;
    Judge judge(impl_->pattern, impl_->nfa);
    Marks covered(impl_->nfa.marks, false);
    std::uint64_t budget = mostCoveringCharacters;
    FixedDraws fixed;
    const Draw draw = [&fixed](std::uint64_t bound) { return fixed(bound); };
    for (Impl::LazyGraph& lazy : impl_->graphs) {
        if (impl_->isSettled(lazy))
            break;
        for (const Path& path : coveringPaths(impl_->graphOf(lazy), lengths, covered, budget)) {
            if (judge.isExhausted())
                break;
            const std::string text = textOf(path, impl_->palettes, draw);
            if (path.size() >= lengths.min && path.size() <= lengths.max && judge.matches(text))
                found.add(path.size(), text);
        }
    }
    if (found.isEmpty()) {
        if (const std::optional<std::string> text = random(lengths, draw))
            found.add(0, *text);
    }
    return found.take();
}

std::optional<std::string> Strings::random(const Lengths& lengths, const Draw& draw) const {
    Judge judge(impl_->pattern, impl_->nfa);
    for (Impl::LazyGraph& lazy : impl_->graphs) {
        if (impl_->isSettled(lazy))
            break;
        const RandomPaths& paths = impl_->pathsOf(lazy, lengths);
        if (paths.isEmpty())
            continue;
        const int tries = lazy.conditions == Conditions::Ignored ? triesOfInexact : 1;
        for (int i = 0; i < tries && !judge.isExhausted(); ++i) {
            Speller speller(impl_->palettes, draw);
            if (!paths.walk(draw, speller))
                break;
            std::string text = speller.take();
            if (judge.matches(text))
                return text;
        }
    }
    return std::nullopt;
}

} // namespace specloom::egret
