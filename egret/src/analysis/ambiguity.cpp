#include "egret/analysis/ambiguity.h"

#include <algorithm>     // std::min, std::minmax
#include <unordered_map> // std::unordered_map
#include <utility>       // std::move
#include <vector>        // std::vector

namespace specloom::egret::checks {

namespace {

/// The pairs of places that one text leads to in two ways, and their strongly connected components by the
/// algorithm of Tarjan, with a stack of its own.
class SquaredAutomaton {
  public:
    SquaredAutomaton(const PositionAutomaton& automaton, const Alphabet& alphabet, Budget& budget)
        : automaton_(automaton), alphabet_(alphabet), budget_(budget) {}

    [[nodiscard]] bool hasAmbiguousComponent() {
        for (std::uint32_t i = 0; i < automaton_.steps.size(); ++i)
            if (!numbers_.contains(keyOf(i, i)) && visitFrom(i))
                return true;
        return false;
    }

  private:
    struct Pair {
        std::uint32_t a;
        std::uint32_t b;
        std::uint32_t lowest; ///< number of a pair of the same component
        bool open;            ///< its component is not complete
    };
    /// A pair whose successors are being visited.
    struct Visit {
        std::uint32_t pair;
        std::vector<std::uint64_t> successors;
        std::size_t next = 0;
    };

    static std::uint64_t keyOf(std::uint32_t a, std::uint32_t b) { return std::uint64_t{a} << 32U | b; }

    std::uint32_t add(std::uint32_t a, std::uint32_t b) {
        const auto number = static_cast<std::uint32_t>(pairs_.size());
        numbers_.emplace(keyOf(a, b), number);
        pairs_.push_back({a, b, number, true});
        open_.push_back(number);
        return number;
    }

    bool visitFrom(std::uint32_t place) {
        std::vector<Visit> visits;
        begin(place, place, visits);
        while (!visits.empty()) {
            Visit& visit = visits.back();
            if (visit.next < visit.successors.size()) {
                const std::uint64_t successor = visit.successors[visit.next++];
                follow(visit.pair, successor, visits);
                continue;
            }
            const std::uint32_t done = visit.pair;
            visits.pop_back();
            if (!visits.empty())
                lower(visits.back().pair, pairs_[done].lowest);
            if (pairs_[done].lowest == done && closeComponent(done))
                return true;
        }
        return false;
    }

    void follow(std::uint32_t from, std::uint64_t key, std::vector<Visit>& visits) {
        const auto known = numbers_.find(key);
        if (known == numbers_.end())
            begin(static_cast<std::uint32_t>(key >> 32U), static_cast<std::uint32_t>(key), visits);
        else if (pairs_[known->second].open)
            lower(from, known->second);
    }

    void lower(std::uint32_t pair, std::uint32_t lowest) {
        pairs_[pair].lowest = std::min(pairs_[pair].lowest, lowest);
    }

    void begin(std::uint32_t a, std::uint32_t b, std::vector<Visit>& visits) {
        Visit visit{.pair = add(a, b), .successors = {}};
        forEachSuccessor(
            a, b, [&](std::uint32_t c, std::uint32_t d, bool) { visit.successors.push_back(keyOf(c, d)); });
        visits.push_back(std::move(visit));
    }

    /// Of each successor the smaller place comes first, since the order of the two ways does not matter.
    template <typename Visitor>
    void forEachSuccessor(std::uint32_t a, std::uint32_t b, const Visitor& visitor) {
        const auto& left = automaton_.steps[a];
        const auto& right = automaton_.steps[b];
        budget_.spend(std::uint64_t{left.size()} * right.size() + 1);
        for (const PositionAutomaton::Step& one : left)
            for (const PositionAutomaton::Step& other : right)
                if (alphabet_.meet(automaton_.labels[one.to], automaton_.labels[other.to])) {
                    const auto [c, d] = std::minmax(one.to, other.to);
                    visitor(c, d, one.several);
                }
    }

    /// Takes the component of its first pair off the open ones, and says whether it is ambiguous.
    bool closeComponent(std::uint32_t first) {
        std::vector<std::uint32_t> members;
        bool hasSame = false;
        bool hasDifferent = false;
        do {
            members.push_back(open_.back());
            open_.pop_back();
            const Pair& pair = pairs_[members.back()];
            (pair.a == pair.b ? hasSame : hasDifferent) = true;
        } while (members.back() != first);
        bool ambiguous = hasSame && hasDifferent;
        // All of the component are still marked as open, and nothing else that follows from it is.
        for (const std::uint32_t member : members)
            ambiguous = ambiguous || hasSeveralStepsWithin(pairs_[member], first);
        for (const std::uint32_t member : members)
            pairs_[member].open = false;
        return ambiguous;
    }

    bool hasSeveralStepsWithin(Pair pair, std::uint32_t first) {
        if (pair.a != pair.b)
            return false;
        bool found = false;
        forEachSuccessor(pair.a, pair.a, [&](std::uint32_t c, std::uint32_t d, bool several) {
            if (!several || c != d || found)
                return;
            const auto known = numbers_.find(keyOf(c, d));
            found = known != numbers_.end() && known->second >= first && pairs_[known->second].open;
        });
        return found;
    }

    const PositionAutomaton& automaton_;
    const Alphabet& alphabet_;
    Budget& budget_;
    std::unordered_map<std::uint64_t, std::uint32_t> numbers_;
    std::vector<Pair> pairs_;
    std::vector<std::uint32_t> open_;
};

} // namespace

bool isExponentiallyAmbiguous(const PositionAutomaton& automaton, const Alphabet& alphabet, Budget& budget) {
    return SquaredAutomaton(automaton, alphabet, budget).hasAmbiguousComponent();
}

} // namespace specloom::egret::checks
