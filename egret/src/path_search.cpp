#include "egret/path_search.h"

#include "egret/lengths.h"

#include <algorithm> // std::max, std::min, std::ranges::lower_bound, std::ranges::reverse, std::ranges::sort
#include <deque>     // std::deque
#include <utility>   // std::move, std::pair

namespace specloom::egret {

namespace {

/// Characters of a drawn path beyond those that every edge can be gone through with.
constexpr Length drawnBeyond = 64;
/// Edges that are compared to find one that is not yet covered; then the first that leads on is taken.
constexpr std::uint64_t mostComparedEdges = 50'000'000;

/// The largest length that has to be looked at: a longer path goes through some node twice, and is not the
/// shortest one behind the smallest length that is allowed. Nothing when no path is short enough.
std::optional<Length> limitOf(const Graph& graph, const Lengths& lengths) {
    if (graph.isEmpty() || lengths.min > longestString || lengths.min > lengths.max)
        return std::nullopt;
    const std::uint64_t nodes = graph.edges.size();
    const std::uint64_t enough = std::max(lengths.min, nodes) + 2 * nodes + drawnBeyond;
    return static_cast<Length>(std::min<std::uint64_t>({lengths.max, enough, longestString}));
}

} // namespace

RandomPaths::RandomPaths(const Graph& graph, const Lengths& lengths) : graph_(graph) {
    const std::optional<Length> limit = limitOf(graph, lengths);
    if (!limit)
        return;
    min_ = static_cast<Length>(lengths.min);
    lengths_ = lengthsToEnd(graph, *limit);
    shortest_ = lengths_[graph.start].atLeast(min_);
    if (shortest_)
        max_ = std::min(*limit, std::max(*shortest_, longestNeeded()) + drawnBeyond);
}

/// By which every edge can be gone through that has a weight.
Length RandomPaths::longestNeeded() const {
    Length longest = 0;
    std::vector<bool> met(graph_.edges.size(), false);
    std::deque<std::pair<std::uint32_t, Length>> open{{graph_.start, 0}};
    while (!open.empty()) {
        const std::uint32_t node = open.front().first;
        const Length distance = open.front().second;
        open.pop_front();
        if (met[node])
            continue;
        met[node] = true;
        longest = std::max(longest, distance + lengths_[node].atLeast(0).value_or(0));
        for (const Edge& edge : graph_.edges.of(node)) {
            if (edge.weight == 0 || met[edge.target])
                continue;
            if (edge.length() == 0)
                open.emplace_front(edge.target, distance);
            else
                open.emplace_back(edge.target, distance + 1);
        }
    }
    return longest;
}

bool RandomPaths::walk(const Draw& draw, Speller& speller) const {
    Length done = 0;
    for (std::uint32_t node = graph_.start; node != graph_.accept;) {
        const Edge* const edge = choose(node, done, draw);
        if (edge == nullptr)
            return false;
        if (edge->symbol != noSymbol)
            speller.add(edge->symbol);
        done += edge->length();
        node = edge->target;
    }
    return true;
}

/// The length of the shortest path that goes on with an edge.
std::optional<Length> RandomPaths::lengthBy(const Edge& edge, Length done) const {
    const Length behind = done + edge.length();
    if (behind > max_)
        return std::nullopt;
    const auto length = lengths_[edge.target].atLeast(min_ > behind ? min_ - behind : 0);
    if (!length || *length > max_ - behind)
        return std::nullopt;
    return behind + *length;
}

const Edge* RandomPaths::choose(std::uint32_t node, Length done, const Draw& draw) const {
    const auto edges = graph_.edges.of(node);
    if (edges.size() == 1)
        return &edges.front();
    // Text around a match ends as soon as it can.
    Length longest = max_;
    if (edges.front().mark == paddingMark) {
        for (const Edge& edge : edges)
            longest = std::min(longest, lengthBy(edge, done).value_or(max_));
    }
    const auto leadsOn = [&](const Edge& edge) {
        const std::optional<Length> length = lengthBy(edge, done);
        return length && *length <= longest;
    };
    std::uint64_t total = 0;
    std::uint64_t count = 0;
    const Edge* last = nullptr;
    for (const Edge& edge : edges) {
        if (!leadsOn(edge))
            continue;
        total += edge.weight;
        ++count;
        last = &edge;
    }
    if (count < 2)
        return last;
    std::uint64_t drawn = draw(total == 0 ? count : total);
    for (const Edge& edge : edges) {
        const std::uint64_t share = total == 0 ? 1 : edge.weight;
        if (!leadsOn(edge))
            continue;
        if (drawn < share)
            return &edge;
        drawn -= share;
    }
    return last; // for a draw beyond its bound
}

namespace {

/// What a mark is gone through by, with the fewest characters.
struct Passage {
    Mark mark;
    Length total;       ///< characters of the whole path,
    Length front;       ///< and of those in front of the edge
    std::uint32_t node; ///< that the edge leaves
    const Edge* edge;   ///< null when the node itself has the mark
};

class CoveringSearch {
  public:
    CoveringSearch(const Graph& graph, const Lengths& lengths, Length limit, Marks& covered)
        : graph_(graph), back_(reversed(graph)), lengths_(lengths), limit_(limit), covered_(covered),
          toEnd_(lengthsToEnd(graph, limit)), toStart_(lengthsToEnd(back_, limit)), nodeMarks_(graph.marks) {
        std::ranges::sort(nodeMarks_);
    }

    std::vector<Path> search(std::uint64_t& budget) {
        std::vector<Path> paths;
        for (const Passage& passage : passages()) {
            if (covered_[passage.mark])
                continue;
            if (passage.total > budget)
                break;
            budget -= passage.total;
            paths.push_back(pathThrough(passage));
        }
        return paths;
    }

  private:
    [[nodiscard]] std::uint32_t inBack(std::uint32_t node) const { return graph_.edges.size() - 1 - node; }

    /// The best one for each mark that is not covered, those with fewer characters first.
    [[nodiscard]] std::vector<Passage> passages() const {
        std::vector<Passage> best(covered_.size(), {noMark, 0, 0, 0, nullptr});
        for (const auto& [node, mark] : nodeMarks_)
            improve(best, mark, node, nullptr);
        for (std::uint32_t node = 0; node < graph_.edges.size(); ++node) {
            for (const Edge& edge : graph_.edges.of(node))
                improve(best, edge.mark, node, &edge);
        }
        std::erase_if(best, [](const Passage& passage) { return passage.mark == noMark; });
        std::ranges::stable_sort(best, {}, &Passage::total);
        return best;
    }

    void improve(std::vector<Passage>& best, Mark mark, std::uint32_t node, const Edge* edge) const {
        if (mark == noMark || mark == paddingMark || covered_[mark])
            return;
        const Length length = edge == nullptr ? 0 : edge->length();
        const Length min = static_cast<Length>(lengths_.min);
        const auto sum = sumAtLeast(toStart_[inBack(node)], toEnd_[edge == nullptr ? node : edge->target],
                                    min > length ? min - length : 0);
        if (!sum || sum->total + length > limit_)
            return;
        Passage& passage = best[mark];
        if (passage.mark == noMark || sum->total + length < passage.total)
            passage = {mark, sum->total + length, sum->left, node, edge};
    }

    Path pathThrough(const Passage& passage) {
        Path path;
        follow(back_, toStart_, inBack(passage.node), passage.front, path);
        std::ranges::reverse(path);
        std::uint32_t node = passage.node;
        Length rest = passage.total - passage.front;
        if (passage.edge != nullptr) {
            cover(*passage.edge, node);
            if (passage.edge->symbol != noSymbol)
                path.push_back(passage.edge->symbol);
            rest -= passage.edge->length();
            node = passage.edge->target;
        }
        follow(graph_, toEnd_, node, rest, path);
        covered_[passage.mark] = true;
        return path;
    }

    /// From a node to the end of a graph, which is `length` characters away on the path.
    void follow(const Graph& graph, const std::vector<LengthSet>& lengths, std::uint32_t node, Length length,
                Path& path) {
        const bool back = &graph == &back_;
        coverNode(back ? inBack(node) : node);
        while (node != graph.accept || length > 0) {
            const Edge* const edge = bestEdge(graph, lengths, node, length);
            if (edge == nullptr)
                return; // where lengths were left out
            if (edge->symbol != noSymbol)
                path.push_back(edge->symbol);
            length -= edge->length();
            node = edge->target;
            cover(*edge, back ? inBack(node) : node);
        }
    }

    /// Of those that lead on one that is not covered, or else the one with the largest weight.
    const Edge* bestEdge(const Graph& graph, const std::vector<LengthSet>& lengths, std::uint32_t node,
                         Length length) {
        const Edge* best = nullptr;
        for (const Edge& edge : graph.edges.of(node)) {
            if (edge.length() > length || !lengths[edge.target].contains(length - edge.length()))
                continue;
            if (isOpen(edge.mark) || compared_ > mostComparedEdges)
                return &edge;
            ++compared_;
            if (best == nullptr || edge.weight > best->weight)
                best = &edge;
        }
        return best;
    }

    [[nodiscard]] bool isOpen(Mark mark) const {
        return mark != noMark && mark != paddingMark && !covered_[mark];
    }

    void cover(const Edge& edge, std::uint32_t node) {
        if (isOpen(edge.mark))
            covered_[edge.mark] = true;
        coverNode(node);
    }

    void coverNode(std::uint32_t node) {
        for (auto place = std::ranges::lower_bound(nodeMarks_, std::pair(node, Mark{0}));
             place != nodeMarks_.end() && place->first == node; ++place)
            covered_[place->second] = true;
    }

    const Graph& graph_;
    Graph back_;
    const Lengths& lengths_;
    Length limit_;
    Marks& covered_;
    std::vector<LengthSet> toEnd_;
    std::vector<LengthSet> toStart_;
    std::vector<std::pair<std::uint32_t, Mark>> nodeMarks_;
    std::uint64_t compared_ = 0;
};

} // namespace

std::vector<Path> coveringPaths(const Graph& graph, const Lengths& lengths, Marks& covered,
                                std::uint64_t& budget) {
    const std::optional<Length> limit = limitOf(graph, lengths);
    if (!limit)
        return {};
    return CoveringSearch(graph, lengths, *limit, covered).search(budget);
}

} // namespace specloom::egret
