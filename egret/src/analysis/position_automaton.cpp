#include "egret/analysis/position_automaton.h"

#include <algorithm> // std::min, std::ranges::sort
#include <utility>   // std::move

namespace specloom::egret::checks {

namespace {

using Kind = regex::Node::Kind;
using Way = PositionAutomaton::Way;
using EmptyWays = PositionAutomaton::EmptyWays;

constexpr EmptyWays oneEmptyWay{1, 0, 0, 0};

/// A part of the expression while the automaton is made.
struct Fragment {
    std::vector<Way> first{};
    std::vector<Way> last{};
    EmptyWays empty{};
};

std::uint8_t cappedWays(unsigned count) {
    return static_cast<std::uint8_t>(std::min(count, 2U));
}

class Builder {
  public:
    Builder(const Alphabet& alphabet, std::size_t tree, Budget& budget, const Restriction& restriction)
        : alphabet_(alphabet), tree_(tree), budget_(budget), restriction_(restriction) {}

    PositionAutomaton build(const regex::Node& node) {
        Fragment whole = fragment(node);
        result_.first = std::move(whole.first);
        result_.last = std::move(whole.last);
        result_.empty = whole.empty;
        for (std::vector<PositionAutomaton::Step>& steps : result_.steps)
            joinEqual(steps);
        return std::move(result_);
    }

  private:
    Fragment fragment(const regex::Node& node) {
        switch (node.kind) {
        case Kind::Sequence:
            return sequence(node);
        case Kind::Alternation:
            return alternation(node);
        case Kind::Repetition:
            return repetition(node);
        case Kind::Group:
            return fragment(node.children.front());
        case Kind::Character:
        case Kind::Class:
            return place(node);
        case Kind::TextStart:
            return {.empty = {0, 1, 0, 0}};
        case Kind::TextEnd:
            return {.empty = {0, 0, 1, 0}};
        case Kind::WordBoundary:
        case Kind::LookAhead:
        case Kind::LookBehind:
            break;
        }
        result_.exact = false;
        return {.empty = oneEmptyWay};
    }

    Fragment place(const regex::Node& node) {
        budget_.spend(1);
        const auto position = static_cast<std::uint32_t>(result_.labels.size());
        result_.labels.push_back(alphabet_.labelOf(node, tree_));
        result_.steps.emplace_back();
        const Way way{position, false, false};
        return {.first = {way}, .last = {way}};
    }

    Fragment sequence(const regex::Node& node) {
        Fragment result{.empty = oneEmptyWay};
        for (const regex::Node& child : node.children)
            result = concatenation(std::move(result), fragment(child));
        return result;
    }

    Fragment alternation(const regex::Node& node) {
        Fragment result;
        for (std::size_t i = 0; i < node.children.size(); ++i) {
            if (restriction_.alternation == &node && !restriction_.kept[i])
                continue;
            Fragment part = fragment(node.children[i]);
            append(part.first, result.first);
            append(part.last, result.last);
            for (std::size_t kind = 0; kind < result.empty.size(); ++kind)
                result.empty[kind] = cappedWays(result.empty[kind] + 0U + part.empty[kind]);
        }
        return result;
    }

    Fragment repetition(const regex::Node& node) {
        const regex::Node& body = node.children.front();
        // What consumes nothing does no more the second time than the first.
        if (body.zeroWidth)
            return node.min == 0 ? Fragment{.empty = oneEmptyWay} : fragment(body);
        Fragment result{.empty = oneEmptyWay};
        const bool endless = node.max == regex::unbounded;
        for (std::uint32_t i = 0; i + (endless ? 1U : 0U) < node.min; ++i) {
            budget_.spend(1);
            result = concatenation(std::move(result), fragment(body));
        }
        Fragment rest = endless ? loop(body, node.min > 0) : optionalRounds(body, node.max - node.min);
        return concatenation(std::move(result), std::move(rest));
    }

    /// Any number of rounds, or one at least, which alone may be empty.
    Fragment loop(const regex::Node& body, bool mandatory) {
        Fragment round = fragment(body);
        connect(round.last, round.first);
        if (!mandatory) {
            round.empty = oneEmptyWay;
            return round;
        }
        const std::vector<Way> first = round.first;
        append(through(round.empty, first, atStart), round.first);
        return round;
    }

    Fragment optionalRounds(const regex::Node& body, std::uint32_t count) {
        Fragment result{.empty = oneEmptyWay};
        for (std::uint32_t i = 0; i < count; ++i) {
            budget_.spend(1);
            Fragment round = fragment(body);
            round.empty = {};
            result = concatenation(std::move(round), std::move(result));
            result.empty = oneEmptyWay;
        }
        return result;
    }

    Fragment concatenation(Fragment left, Fragment right) {
        connect(left.last, right.first);
        Fragment result;
        for (std::size_t a = 0; a < left.empty.size(); ++a)
            for (std::size_t b = 0; b < right.empty.size(); ++b)
                result.empty[a | b] =
                    cappedWays(result.empty[a | b] + unsigned{left.empty[a]} * unsigned{right.empty[b]});
        const std::vector<Way> first = through(left.empty, right.first, atStart);
        const std::vector<Way> last = through(right.empty, left.last, atEnd);
        result.first = std::move(left.first);
        result.last = std::move(right.last);
        append(first, result.first);
        append(last, result.last);
        return result;
    }

    /// The ways through what matches no characters, on the side of the text where `edge` holds.
    std::vector<Way> through(const EmptyWays& empty, const std::vector<Way>& ways, std::size_t edge) {
        std::vector<Way> result;
        for (const std::size_t kind : {freely, edge}) {
            if (empty[kind] == 0)
                continue;
            budget_.spend(ways.size());
            for (const Way& way : ways)
                result.push_back({way.position, way.atEdge || kind == edge, way.several || empty[kind] > 1});
        }
        return result;
    }

    void connect(const std::vector<Way>& from, const std::vector<Way>& to) {
        budget_.spend(std::uint64_t{from.size()} * to.size());
        for (const Way& out : from)
            for (const Way& in : to)
                if (!out.atEdge && !in.atEdge)
                    result_.steps[out.position].push_back({in.position, out.several || in.several});
    }

    static void append(const std::vector<Way>& more, std::vector<Way>& ways) {
        ways.insert(ways.end(), more.begin(), more.end());
    }

    static void joinEqual(std::vector<PositionAutomaton::Step>& steps) {
        std::ranges::sort(steps, {}, &PositionAutomaton::Step::to);
        std::size_t kept = 0;
        for (const PositionAutomaton::Step step : steps) {
            if (kept > 0 && steps[kept - 1].to == step.to)
                steps[kept - 1].several = true;
            else
                steps[kept++] = step;
        }
        steps.resize(kept);
    }

    const Alphabet& alphabet_;
    std::size_t tree_;
    Budget& budget_;
    const Restriction& restriction_;
    PositionAutomaton result_;
};

} // namespace

PositionAutomaton positionAutomaton(const Alphabet& alphabet, std::size_t tree, const regex::Node& node,
                                    Budget& budget, const Restriction& restriction) {
    return Builder(alphabet, tree, budget, restriction).build(node);
}

} // namespace specloom::egret::checks
