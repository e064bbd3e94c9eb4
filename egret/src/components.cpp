#include "egret/graph.h"

#include <algorithm> // std::min

namespace specloom::egret {

namespace {

constexpr std::uint32_t unmet = std::numeric_limits<std::uint32_t>::max();

/// Tarjan's algorithm with a stack of its own.
class ComponentSearch {
  public:
    ComponentSearch(const EdgeLists& edges, bool silent)
        : edges_(edges), silent_(silent), index_(edges.size(), unmet), low_(edges.size()),
          component_(edges.size(), unmet) {}

    std::vector<std::uint32_t> search() {
        for (std::uint32_t node = 0; node < edges_.size(); ++node) {
            if (index_[node] != unmet)
                continue;
            enter(node);
            while (!calls_.empty())
                advance();
        }
        return std::move(component_);
    }

  private:
    struct Call {
        std::uint32_t node;
        std::size_t edge;
    };

    void enter(std::uint32_t node) {
        index_[node] = low_[node] = met_++;
        open_.push_back(node);
        calls_.push_back({node, 0});
    }

    void advance() {
        const std::uint32_t node = calls_.back().node;
        const auto edges = edges_.of(node);
        while (calls_.back().edge < edges.size()) {
            const Edge& edge = edges[calls_.back().edge++];
            if (silent_ && edge.symbol != noSymbol)
                continue;
            if (index_[edge.target] == unmet) {
                enter(edge.target);
                return;
            }
            if (component_[edge.target] == unmet)
                low_[node] = std::min(low_[node], index_[edge.target]);
        }
        leave(node);
    }

    void leave(std::uint32_t node) {
        calls_.pop_back();
        if (!calls_.empty())
            low_[calls_.back().node] = std::min(low_[calls_.back().node], low_[node]);
        if (low_[node] != index_[node])
            return;
        for (bool more = true; more;) {
            more = open_.back() != node;
            component_[open_.back()] = components_;
            open_.pop_back();
        }
        ++components_;
    }

    const EdgeLists& edges_;
    bool silent_;
    std::vector<std::uint32_t> index_;
    std::vector<std::uint32_t> low_;
    std::vector<std::uint32_t> component_;
    std::vector<std::uint32_t> open_;
    std::vector<Call> calls_;
    std::uint32_t met_ = 0;
    std::uint32_t components_ = 0;
};

} // namespace

std::vector<std::uint32_t> componentsOf(const EdgeLists& edges, bool silent) {
    return ComponentSearch(edges, silent).search();
}

} // namespace specloom::egret
