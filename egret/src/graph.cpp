#include "egret/graph.h"

#include "egret/contexts.h"

#include <algorithm>     // std::ranges::stable_sort
#include <numeric>       // std::iota
#include <unordered_map> // std::unordered_map

namespace specloom::egret {

namespace {

using StateKind = State::Kind;

constexpr std::size_t mostNodes = 600'000;
constexpr std::size_t mostEdges = 1'500'000;

/// What was met, nodes by their numbers.
struct Explored {
    /// Of the nodes that were looked at, in the order that `order` tells.
    EdgeLists edges{};
    std::vector<std::uint32_t> order{};
    /// For each node whether a match, and the text, can end there.
    std::vector<bool> ends{};
    std::vector<std::uint32_t> starts{};
    bool isComplete = true;
};

/// Looks at states in contexts, those that fewer characters lead to first.
class Explorer {
  public:
    Explorer(const Nfa& nfa, const Alphabet& alphabet, const std::vector<std::uint32_t>& weights,
             Surroundings surroundings, Conditions conditions)
        : nfa_(nfa), alphabet_(alphabet), weights_(weights), surroundings_(surroundings),
          conditions_(conditions), contexts_(nfa, alphabet, conditions) {}

    Explored explore() {
        const std::uint32_t start = surroundings_ == Surroundings::Text ? nfa_.paddedStart : nfa_.start;
        for (const ContextId context : contexts_.initial())
            explored_.starts.push_back(nodeOf(start, context, now_));
        while (!now_.empty() || !next_.empty()) {
            if (now_.empty())
                now_.swap(next_);
            const std::uint32_t node = now_.back();
            now_.pop_back();
            if (explored_.edges.edges() > mostEdges || contexts_.isIncomplete()) {
                explored_.isComplete = false;
                break;
            }
            lookAt(node);
            explored_.edges.closeNode();
            explored_.order.push_back(node);
        }
        explored_.isComplete = explored_.isComplete && !contexts_.isIncomplete();
        return std::move(explored_);
    }

  private:
    struct Place {
        std::uint32_t state;
        ContextId context;
    };

    /// Numbers a place and puts it on the list when it is new.
    std::uint32_t nodeOf(std::uint32_t state, ContextId context, std::vector<std::uint32_t>& list) {
        const std::uint64_t key = (std::uint64_t{state} << 32U) | context;
        const auto [place, isNew] = numbers_.try_emplace(key, static_cast<std::uint32_t>(nodes_.size()));
        if (isNew) {
            nodes_.push_back({state, context});
            explored_.ends.push_back(false);
            if (nodes_.size() <= mostNodes)
                list.push_back(place->second);
            else
                explored_.isComplete = false;
        }
        return place->second;
    }

    void addSilent(std::uint32_t state, ContextId context, Mark mark, std::uint32_t weight) {
        explored_.edges.add({nodeOf(state, context, now_), noSymbol, mark, weight});
    }

    void lookAt(std::uint32_t node) {
        const Place place = nodes_[node];
        const State& state = nfa_.states[place.state];
        switch (state.kind) {
        case StateKind::Match:
            explored_.ends[node] = contexts_.canEnd(place.context);
            return;
        case StateKind::Split:
            for (const Branch& branch : nfa_.branchesOf(state)) {
                if (branch.mark != paddingMark || surroundings_ == Surroundings::Text)
                    addSilent(branch.target, place.context, branch.mark, branch.weight);
            }
            return;
        case StateKind::Character:
            lookAtCharacter(state, place.context);
            return;
        default:
            break;
        }
        const bool canIgnore = state.kind == StateKind::WordBoundary || state.kind == StateKind::Lookaround;
        if (canIgnore && conditions_ == Conditions::Ignored) {
            addSilent(state.next, place.context, noMark, 1);
            return;
        }
        for (const ContextId context : contexts_.holding(place.context, state))
            addSilent(state.next, context, noMark, 1);
    }

    void lookAtCharacter(const State& state, ContextId context) {
        const Mark mark = state.value == nfa_.paddingLabel ? paddingMark : noMark;
        for (const std::uint32_t symbol : alphabet_.ofLabel[state.value]) {
            for (const ContextId behind : contexts_.behind(context, symbol))
                explored_.edges.add({nodeOf(state.next, behind, next_), symbol, mark, weights_[symbol]});
        }
    }

    const Nfa& nfa_;
    const Alphabet& alphabet_;
    const std::vector<std::uint32_t>& weights_;
    Surroundings surroundings_;
    Conditions conditions_;
    Contexts contexts_;
    Explored explored_;
    std::vector<Place> nodes_;
    std::unordered_map<std::uint64_t, std::uint32_t> numbers_;
    std::vector<std::uint32_t> now_;
    std::vector<std::uint32_t> next_;
};

/// Nodes by their numbers, then the end of all texts, and in front of it their beginning.
EdgeLists withEnds(const Explored& explored) {
    const auto nodes = static_cast<std::uint32_t>(explored.ends.size());
    std::vector<std::uint32_t> place(nodes, nodes);
    for (std::uint32_t i = 0; i < explored.order.size(); ++i)
        place[explored.order[i]] = i;
    EdgeLists result;
    for (std::uint32_t node = 0; node < nodes; ++node) {
        if (place[node] != nodes) {
            for (const Edge& edge : explored.edges.of(place[node]))
                result.add(edge);
        }
        if (explored.ends[node])
            result.add({nodes, noSymbol, noMark, 1});
        result.closeNode();
    }
    result.closeNode();
    for (const std::uint32_t start : explored.starts)
        result.add({start, noSymbol, noMark, 1});
    result.closeNode();
    return result;
}

/// For each node those that lead to it.
EdgeLists turned(const EdgeLists& edges) {
    std::vector<std::size_t> begins(edges.size() + 1, 0);
    for (std::uint32_t node = 0; node < edges.size(); ++node) {
        for (const Edge& edge : edges.of(node))
            ++begins[edge.target + 1];
    }
    for (std::uint32_t node = 0; node < edges.size(); ++node)
        begins[node + 1] += begins[node];
    std::vector<Edge> list(edges.edges());
    std::vector<std::size_t> next(begins.begin(), begins.end() - 1);
    for (std::uint32_t node = 0; node < edges.size(); ++node) {
        for (const Edge& edge : edges.of(node))
            list[next[edge.target]++] = {node, edge.symbol, edge.mark, edge.weight};
    }
    return {std::move(begins), std::move(list)};
}

std::vector<bool> leadingTo(const EdgeLists& edges, std::uint32_t end) {
    const EdgeLists back = turned(edges);
    std::vector<bool> result(edges.size(), false);
    std::vector<std::uint32_t> open{end};
    result[end] = true;
    while (!open.empty()) {
        const std::uint32_t node = open.back();
        open.pop_back();
        for (const Edge& edge : back.of(node)) {
            if (!result[edge.target])
                open.push_back(edge.target);
            result[edge.target] = true;
        }
    }
    return result;
}

/// Leaves out the nodes that are not alive, and makes one node of those that lead to one another without
/// a character.
class Condenser {
  public:
    Condenser(const EdgeLists& edges, const std::vector<bool>& alive)
        : edges_(edges), alive_(alive), number_(componentsOf(edges, true)) {
        std::vector<std::uint32_t> order(edges.size());
        std::iota(order.begin(), order.end(), 0U);
        std::erase_if(order, [&alive](std::uint32_t node) { return !alive[node]; });
        std::ranges::stable_sort(order, {}, [this](std::uint32_t node) { return number_[node]; });
        members_ = std::move(order);
        renumber();
    }

    Graph condense() {
        for (std::size_t i = 0; i < members_.size(); ++i) {
            addEdges(members_[i]);
            if (i + 1 == members_.size() || number_[members_[i + 1]] != number_[members_[i]])
                graph_.edges.closeNode();
        }
        return std::move(graph_);
    }

    [[nodiscard]] std::uint32_t numberOf(std::uint32_t node) const { return number_[node]; }

  private:
    void renumber() {
        std::uint32_t count = 0;
        std::uint32_t before = 0;
        for (std::size_t i = 0; i < members_.size(); ++i) {
            const std::uint32_t component = number_[members_[i]];
            if (i > 0 && component != before)
                ++count;
            before = component;
            number_[members_[i]] = count;
        }
    }

    void addEdges(std::uint32_t node) {
        for (Edge edge : edges_.of(node)) {
            if (!alive_[edge.target])
                continue;
            edge.target = number_[edge.target];
            if (edge.symbol != noSymbol || edge.target != number_[node])
                graph_.edges.add(edge);
            else if (edge.mark != noMark)
                graph_.marks.emplace_back(edge.target, edge.mark);
        }
    }

    const EdgeLists& edges_;
    const std::vector<bool>& alive_;
    std::vector<std::uint32_t> number_;
    std::vector<std::uint32_t> members_;
    Graph graph_;
};

} // namespace

Graph explore(const Nfa& nfa, const Alphabet& alphabet, const std::vector<std::uint32_t>& weights,
              Surroundings surroundings, Conditions conditions) {
    const Explored explored = Explorer(nfa, alphabet, weights, surroundings, conditions).explore();
    const EdgeLists edges = withEnds(explored);
    const auto accept = static_cast<std::uint32_t>(explored.ends.size());
    const std::uint32_t start = accept + 1;
    const std::vector<bool> alive = leadingTo(edges, accept);
    Graph graph;
    if (alive[start]) {
        Condenser condenser(edges, alive);
        graph = condenser.condense();
        graph.start = condenser.numberOf(start);
        graph.accept = condenser.numberOf(accept);
        graph.marks.emplace_back(graph.start, startMark);
    }
    graph.isComplete = explored.isComplete;
    graph.isExact = conditions == Conditions::Hold;
    return graph;
}

Graph reversed(const Graph& graph) {
    const EdgeLists back = turned(graph.edges);
    const std::uint32_t last = back.size() - 1;
    Graph result;
    for (std::uint32_t node = 0; node <= last; ++node) {
        for (Edge edge : back.of(last - node)) {
            edge.target = last - edge.target;
            result.edges.add(edge);
        }
        result.edges.closeNode();
    }
    result.start = last - graph.accept;
    result.accept = last - graph.start;
    return result;
}

} // namespace specloom::egret
