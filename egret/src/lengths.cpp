#include "egret/lengths.h"

#include <algorithm> // std::max, std::ranges::any_of, std::ranges::fill, std::ranges::lower_bound
#include <cstddef>   // std::size_t
#include <cstdint>   // std::uint32_t, std::uint64_t
#include <limits>    // std::numeric_limits
#include <numeric>   // std::gcd, std::iota
#include <span>      // std::span

namespace specloom::egret {

namespace {

/// Edges looked at, for each length anew in loops that have not come to rest, and parts of sets.
constexpr std::uint64_t mostLengthSteps = 150'000'000;
/// Parts of all sets.
constexpr std::uint64_t mostLengthParts = 4'000'000;

struct Effort {
    std::uint64_t steps = 0;
    std::uint64_t parts = 0;
    [[nodiscard]] bool isSpent() const { return steps > mostLengthSteps || parts > mostLengthParts; }
};

/// The lengths of the nodes of a loop, or of several that share nodes: a strongly connected component. They
/// are found one after another, until they come to rest.
///
/// The lengths of its loops have a greatest common divisor, the period. Nodes that lie as far behind a chosen
/// one, modulo the period, are a class. A way to the end that stays in the loop stays on one line: class and
/// length together, modulo the period. Once all nodes of a class have a length, those of the class in front
/// of it have the next one, and so on forever: the line is full.
class LoopLengths {
  public:
    /// The nodes are in ascending order; what they lead to outside is known.
    LoopLengths(const Graph& graph, std::span<const std::uint32_t> nodes, std::vector<LengthSet>& lengths,
                Length limit, Effort& effort)
        : graph_(graph), nodes_(nodes), lengths_(lengths), limit_(limit), effort_(effort) {
        findEdges();
        findClasses();
    }

    void find() {
        wanted_.assign(period_, false);
        full_.assign(period_, false);
        for (std::uint32_t i = 0; i < nodes_.size(); ++i)
            wantLines(i);
        std::vector<char> before(nodes_.size(), 0);
        std::vector<char> now(nodes_.size(), 0);
        for (Length length = 0; !effort_.isSpent(); ++length) {
            step(length, before, now);
            if (full_ == wanted_)
                return fillUp(length);
            if (length == limit_)
                return;
            before.swap(now);
        }
    }

  private:
    struct InnerEdge {
        std::uint32_t target;
        Length length;
    };

    void findEdges() {
        for (const std::uint32_t node : nodes_) {
            LengthSet& exits = exits_.emplace_back();
            if (node == graph_.accept)
                exits.append(0, 1);
            for (const Edge& edge : graph_.edges.of(node)) {
                const auto place = std::ranges::lower_bound(nodes_, edge.target);
                if (place != nodes_.end() && *place == edge.target)
                    edges_.push_back({static_cast<std::uint32_t>(place - nodes_.begin()), edge.length()});
                else
                    exits.add(lengths_[edge.target], edge.length(), limit_);
            }
            exits.normalize();
            effort_.steps += exits.parts().size();
            edgesEnd_.push_back(edges_.size());
        }
    }

    [[nodiscard]] std::span<const InnerEdge> edgesOf(std::size_t i) const {
        const std::size_t begin = i == 0 ? 0 : edgesEnd_[i - 1];
        return std::span(edges_).subspan(begin, edgesEnd_[i] - begin);
    }

    void findClasses() {
        constexpr Length unknown = std::numeric_limits<Length>::max();
        class_.assign(nodes_.size(), unknown);
        class_[0] = 0;
        std::vector<std::uint32_t> open{0};
        while (!open.empty()) {
            const std::uint32_t i = open.back();
            open.pop_back();
            for (const InnerEdge& edge : edgesOf(i)) {
                const Length distance = class_[i] + edge.length;
                if (class_[edge.target] == unknown) {
                    class_[edge.target] = distance;
                    open.push_back(edge.target);
                } else {
                    period_ = std::gcd(period_, std::max(distance, class_[edge.target]) -
                                                    std::min(distance, class_[edge.target]));
                }
            }
        }
        sizes_.assign(period_, 0);
        for (Length& number : class_)
            ++sizes_[number %= period_];
        active_.resize(period_);
    }

    /// The lines on which a way out of the loop lies.
    void wantLines(std::uint32_t i) {
        for (const Progression& part : exits_[i].parts()) {
            Length value = part.first;
            for (Length n = 0; n < period_ && value <= part.last; ++n, value += part.step)
                wanted_[(class_[i] + value) % period_] = true;
            effort_.steps += std::min(period_, (part.last - part.first) / part.step + 1);
        }
    }

    /// The nodes that have a length, by those that have the one before.
    void step(Length length, const std::vector<char>& before, std::vector<char>& now) {
        std::ranges::fill(active_, 0U);
        for (std::size_t i = 0; i < nodes_.size(); ++i) {
            bool has = exits_[i].contains(length);
            for (const InnerEdge& edge : edgesOf(i))
                has = has || (edge.length == 0 ? now[edge.target] : before[edge.target]) != 0;
            now[i] = has ? 1 : 0;
            if (has) {
                ++active_[class_[i]];
                const std::size_t parts = lengths_[nodes_[i]].parts().size();
                lengths_[nodes_[i]].append(length, period_);
                effort_.parts += lengths_[nodes_[i]].parts().size() - parts;
                effort_.steps += parts;
            }
            effort_.steps += 1 + exits_[i].parts().size() + edgesOf(i).size();
        }
        for (Length number = 0; number < period_; ++number) {
            if (active_[number] == sizes_[number])
                full_[(number + length) % period_] = true;
        }
        effort_.steps += period_;
    }

    /// What is larger than `length`, when all lines are full that will ever be met.
    void fillUp(Length length) {
        for (Length line = 0; line < period_; ++line) {
            if (!full_[line])
                continue;
            for (std::size_t i = 0; i < nodes_.size(); ++i) {
                const Length behind = (class_[i] + length) % period_;
                const Length more = (line + period_ - behind) % period_;
                lengths_[nodes_[i]].appendAll(length + (more == 0 ? period_ : more), period_, limit_);
            }
            effort_.steps += nodes_.size();
        }
    }

    const Graph& graph_;
    std::span<const std::uint32_t> nodes_;
    std::vector<LengthSet>& lengths_;
    Length limit_;
    Effort& effort_;
    std::vector<InnerEdge> edges_;
    std::vector<std::size_t> edgesEnd_;
    std::vector<LengthSet> exits_;
    Length period_ = 0;
    /// Of each node, and how many nodes are of each.
    std::vector<Length> class_;
    std::vector<std::uint32_t> sizes_;
    std::vector<std::uint32_t> active_;
    std::vector<bool> wanted_;
    std::vector<bool> full_;
};

bool isLoop(const Graph& graph, std::span<const std::uint32_t> nodes) {
    if (nodes.size() > 1)
        return true;
    const std::uint32_t node = nodes.front();
    return std::ranges::any_of(graph.edges.of(node), [=](const Edge& edge) { return edge.target == node; });
}

LengthSet lengthsOfNode(const Graph& graph, std::uint32_t node, const std::vector<LengthSet>& lengths,
                        Length limit) {
    LengthSet result;
    if (node == graph.accept)
        result.append(0, 1);
    for (const Edge& edge : graph.edges.of(node))
        result.add(lengths[edge.target], edge.length(), limit);
    result.normalize();
    return result;
}

} // namespace

std::vector<LengthSet> lengthsToEnd(const Graph& graph, Length limit) {
    const std::vector<std::uint32_t> component = componentsOf(graph.edges, false);
    std::vector<std::uint32_t> order(graph.edges.size());
    std::iota(order.begin(), order.end(), 0U);
    std::ranges::stable_sort(order, {}, [&component](std::uint32_t node) { return component[node]; });
    std::vector<LengthSet> lengths(graph.edges.size());
    Effort effort;
    for (std::size_t begin = 0, end = 0; begin < order.size() && !effort.isSpent(); begin = end) {
        while (end < order.size() && component[order[end]] == component[order[begin]])
            ++end;
        const auto nodes = std::span<const std::uint32_t>(order).subspan(begin, end - begin);
        if (isLoop(graph, nodes)) {
            LoopLengths(graph, nodes, lengths, limit, effort).find();
            continue;
        }
        LengthSet& found = lengths[nodes.front()];
        found = lengthsOfNode(graph, nodes.front(), lengths, limit);
        effort.parts += found.parts().size();
        effort.steps += graph.edges.of(nodes.front()).size();
    }
    return lengths;
}

} // namespace specloom::egret
