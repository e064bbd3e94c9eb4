#include "egret/analysis/text_automaton.h"

#include <algorithm>     // std::ranges::sort, std::ranges::any_of, std::unique
#include <map>           // std::map
#include <unordered_set> // std::unordered_set
#include <utility>       // std::pair

namespace specloom::egret::checks {

namespace {

using State = TextAutomaton::State;
using Edge = TextAutomaton::Edge;

/// Something was read and nothing is found yet.
constexpr State searching = 2;
constexpr State firstPlace = 3;

/// Pairs of states that were met, and those of them that are still to be looked at, in the order of their
/// meeting.
class Pairs {
  public:
    using Pair = std::pair<std::uint32_t, std::uint32_t>;

    void meet(std::uint32_t a, std::uint32_t b) {
        if (met_.insert(std::uint64_t{a} << 32U | b).second)
            waiting_.emplace_back(a, b);
    }
    [[nodiscard]] bool allSeen() const { return seen_ == waiting_.size(); }
    Pair next() { return waiting_[seen_++]; }

  private:
    std::unordered_set<std::uint64_t> met_;
    std::vector<Pair> waiting_;
    std::size_t seen_ = 0;
};

/// The sets of states that texts lead to (the powerset construction), made as they are asked for.
class StateSets {
  public:
    StateSets(const TextAutomaton& automaton, Budget& budget) : automaton_(automaton), budget_(budget) {}

    std::uint32_t start() { return numberOf({TextAutomaton::start()}); }

    std::uint32_t next(std::uint32_t set, std::uint32_t characterClass) {
        const auto key = std::pair(set, characterClass);
        if (const auto known = next_.find(key); known != next_.end())
            return known->second;
        std::vector<State> states;
        for (const State state : *sets_[set]) {
            const std::vector<Edge>& edges = automaton_.edgesOf(state);
            budget_.spend(edges.size() + 1);
            for (const Edge& edge : edges)
                if (automaton_.alphabet().contains(edge.label, characterClass))
                    states.push_back(edge.to);
        }
        return next_[key] = numberOf(std::move(states));
    }

    [[nodiscard]] bool accepts(std::uint32_t set) const {
        return std::ranges::any_of(*sets_[set], [&](State state) { return automaton_.accepts(state); });
    }
    [[nodiscard]] bool hasFound(std::uint32_t set) const {
        return sets_[set]->size() == 1 && sets_[set]->front() == TextAutomaton::found();
    }

  private:
    std::uint32_t numberOf(std::vector<State> states) {
        std::ranges::sort(states);
        states.erase(std::unique(states.begin(), states.end()), states.end());
        // What else might follow does not matter any more.
        if (std::ranges::any_of(states, [](State state) { return state == TextAutomaton::found(); }))
            states = {TextAutomaton::found()};
        const auto [place, isNew] =
            numbers_.try_emplace(std::move(states), static_cast<std::uint32_t>(sets_.size()));
        if (isNew)
            sets_.push_back(&place->first);
        return place->second;
    }

    const TextAutomaton& automaton_;
    Budget& budget_;
    std::map<std::vector<State>, std::uint32_t> numbers_;
    std::vector<const std::vector<State>*> sets_;
    std::map<std::pair<std::uint32_t, std::uint32_t>, std::uint32_t> next_;
};

bool acceptsAny(const TextAutomaton& automaton, const std::vector<State>& states) {
    return std::ranges::any_of(states, [&](State state) { return automaton.accepts(state); });
}

/// The states one character further, whichever it is.
std::vector<State> statesBehind(const TextAutomaton& automaton, const std::vector<State>& states,
                                std::vector<std::uint64_t>& rounds, std::uint64_t round, Budget& budget) {
    std::vector<State> behind;
    for (const State state : states) {
        budget.spend(automaton.edgesOf(state).size() + 1);
        for (const Edge& edge : automaton.edgesOf(state)) {
            if (rounds[edge.to] == round)
                continue;
            rounds[edge.to] = round;
            behind.push_back(edge.to);
        }
    }
    return behind;
}

} // namespace

TextAutomaton::TextAutomaton(const Alphabet& alphabet, const PositionAutomaton& positions, Budget& budget)
    : alphabet_(alphabet), edges_(positions.labels.size() + firstPlace), accepts_(edges_.size()),
      exact_(positions.exact) {
    const Alphabet::Label any = alphabet.anything();
    const auto& empty = positions.empty;
    const bool anywhere = empty[freely] > 0;
    const bool always = anywhere || empty[atStart] > 0 || empty[atEnd] > 0;
    accepts_[start()] = always || empty[inEmptyText] > 0;
    accepts_[found()] = true;
    accepts_[searching] = anywhere || empty[atEnd] > 0;
    edges_[start()] = {{searching, any}};
    edges_[found()] = {{found(), any}};
    edges_[searching] = {{searching, any}};
    // A match at the end of the text, like any other empty one, is there in every text.
    if (always)
        edges_[start()].push_back({found(), any});
    if (anywhere)
        edges_[searching].push_back({found(), any});
    addPlaces(positions, budget);
    dropDeadEnds(budget);
}

void TextAutomaton::addPlaces(const PositionAutomaton& positions, Budget& budget) {
    for (const PositionAutomaton::Way& way : positions.first) {
        const Edge edge{firstPlace + way.position, positions.labels[way.position]};
        edges_[start()].push_back(edge);
        if (!way.atEdge)
            edges_[searching].push_back(edge);
    }
    for (State i = 0; i < positions.steps.size(); ++i) {
        budget.spend(positions.steps[i].size() + 1);
        for (const PositionAutomaton::Step& step : positions.steps[i])
            edges_[firstPlace + i].push_back({firstPlace + step.to, positions.labels[step.to]});
    }
    for (const PositionAutomaton::Way& way : positions.last) {
        accepts_[firstPlace + way.position] = true;
        if (!way.atEdge)
            edges_[firstPlace + way.position].push_back({found(), alphabet_.anything()});
    }
}

/// Leaves out the edges to states from which no match can be reached any more.
void TextAutomaton::dropDeadEnds(Budget& budget) {
    std::vector<std::vector<State>> sources(edges_.size());
    std::vector<State> waiting;
    for (State state = 0; state < edges_.size(); ++state) {
        budget.spend(edges_[state].size() + 1);
        for (const Edge& edge : edges_[state])
            if (alphabet_.meet(edge.label, edge.label))
                sources[edge.to].push_back(state);
        if (accepts_[state])
            waiting.push_back(state);
    }
    std::vector<bool> useful(accepts_);
    while (!waiting.empty()) {
        const State state = waiting.back();
        waiting.pop_back();
        for (const State source : sources[state])
            if (!useful[source]) {
                useful[source] = true;
                waiting.push_back(source);
            }
    }
    for (std::vector<Edge>& edges : edges_)
        std::erase_if(edges, [&](const Edge& edge) {
            return !useful[edge.to] || !alphabet_.meet(edge.label, edge.label);
        });
}

bool matchesAnything(const TextAutomaton& automaton) {
    return automaton.accepts(TextAutomaton::start()) || !automaton.edgesOf(TextAutomaton::start()).empty();
}

bool haveCommonText(const TextAutomaton& a, const TextAutomaton& b, Budget& budget) {
    Pairs pairs;
    pairs.meet(TextAutomaton::start(), TextAutomaton::start());
    while (!pairs.allSeen()) {
        const auto [left, right] = pairs.next();
        if (a.accepts(left) && b.accepts(right))
            return true;
        budget.spend(std::uint64_t{a.edgesOf(left).size()} * b.edgesOf(right).size());
        for (const Edge& one : a.edgesOf(left))
            for (const Edge& other : b.edgesOf(right))
                if (a.alphabet().meet(one.label, other.label))
                    pairs.meet(one.to, other.to);
    }
    return false;
}

bool isIncluded(const TextAutomaton& part, const TextAutomaton& whole, Budget& budget) {
    StateSets sets(whole, budget);
    Pairs pairs;
    pairs.meet(TextAutomaton::start(), sets.start());
    while (!pairs.allSeen()) {
        const auto [state, set] = pairs.next();
        if (part.accepts(state) && !sets.accepts(set))
            return false;
        for (const Edge& edge : part.edgesOf(state)) {
            budget.spend(part.alphabet().classCount());
            for (std::uint32_t i = 0; i < part.alphabet().classCount(); ++i) {
                if (!part.alphabet().contains(edge.label, i))
                    continue;
                const std::uint32_t next = sets.next(set, i);
                if (!sets.hasFound(next))
                    pairs.meet(edge.to, next);
            }
        }
    }
    return true;
}

bool hasLength(const TextAutomaton& automaton, const Lengths& lengths, Budget& budget) {
    std::vector<State> states{TextAutomaton::start()};
    std::vector<std::uint64_t> rounds(automaton.stateCount(), UINT64_MAX);
    for (std::uint64_t length = 0; length <= lengths.max && !states.empty(); ++length) {
        if (length >= lengths.min && acceptsAny(automaton, states))
            return true;
        states = statesBehind(automaton, states, rounds, length, budget);
        if (length == UINT64_MAX)
            break;
    }
    return false;
}

} // namespace specloom::egret::checks
