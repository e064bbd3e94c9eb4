#include "source_edit/line_script.h"

#include <algorithm> // std::min, std::reverse
#include <cstdint>   // std::int32_t

namespace specloom::source_edit {
namespace {

using Lines = std::vector<std::string_view>;
using Index = std::int32_t;

/// The part of two lists between what they begin and end with alike.
class Middle {
  public:
    Middle(const Lines& before, const Lines& after)
        : before_(before), after_(after), end_{before.size(), after.size()} {
        while (begin_ < std::min(end_.removed, end_.added) && before[begin_] == after[begin_])
            ++begin_;
        while (end_.removed > begin_ && end_.added > begin_ &&
               before[end_.removed - 1] == after[end_.added - 1]) {
            --end_.removed;
            --end_.added;
        }
    }

    [[nodiscard]] std::vector<LineChange> changes() {
        if (begin_ == end_.removed && begin_ == end_.added)
            return {};
        if (!search())
            return {{{begin_, end_.removed}, {begin_, end_.added}}};
        return trace();
    }

  private:
    struct Ends {
        std::size_t removed;
        std::size_t added;
    };

    [[nodiscard]] Index sizeBefore() const { return static_cast<Index>(end_.removed - begin_); }
    [[nodiscard]] Index sizeAfter() const { return static_cast<Index>(end_.added - begin_); }
    [[nodiscard]] bool isSame(Index x, Index y) const {
        return before_[begin_ + static_cast<std::size_t>(x)] == after_[begin_ + static_cast<std::size_t>(y)];
    }

    /// rounds_[d] holds for each diagonal -d, -d + 2, ... d the furthest x that d changes reach.
    [[nodiscard]] Index reached(std::size_t round, Index diagonal) const {
        return rounds_[round][static_cast<std::size_t>((diagonal + static_cast<Index>(round)) / 2)];
    }

    /// Where a path of `d` changes comes onto the diagonal: from above by a line that is added, or from the
    /// left by one that is removed.
    [[nodiscard]] bool comesByAddition(Index d, Index diagonal) const {
        const auto last = static_cast<std::size_t>(d - 1);
        return diagonal == -d || (diagonal != d && reached(last, diagonal - 1) < reached(last, diagonal + 1));
    }

    bool search() {
        for (Index d = 0; d <= static_cast<Index>(mostDifferingLines); ++d) {
            std::vector<Index> round;
            for (Index diagonal = -d; diagonal <= d; diagonal += 2) {
                Index x = 0;
                if (d != 0)
                    x = comesByAddition(d, diagonal)
                            ? reached(static_cast<std::size_t>(d - 1), diagonal + 1)
                            : reached(static_cast<std::size_t>(d - 1), diagonal - 1) + 1;
                while (x < sizeBefore() && x - diagonal < sizeAfter() && isSame(x, x - diagonal))
                    ++x;
                round.push_back(x);
                if (x >= sizeBefore() && x - diagonal >= sizeAfter()) {
                    rounds_.push_back(std::move(round));
                    return true;
                }
            }
            rounds_.push_back(std::move(round));
        }
        return false;
    }

    [[nodiscard]] std::vector<LineChange> trace() const {
        std::vector<LineChange> changes; // the last one first
        Index x = sizeBefore();
        Index y = sizeAfter();
        for (auto d = static_cast<Index>(rounds_.size()) - 1; d > 0; --d) {
            const Index diagonal = x - y;
            const bool isAddition = comesByAddition(d, diagonal);
            const Index former = isAddition ? diagonal + 1 : diagonal - 1;
            x = reached(static_cast<std::size_t>(d - 1), former);
            y = x - former;
            const Extent removed = extentOf(x, isAddition ? 0 : 1);
            const Extent added = extentOf(y, isAddition ? 1 : 0);
            if (!changes.empty() && changes.back().removed.begin == removed.end &&
                changes.back().added.begin == added.end)
                changes.back() = {{removed.begin, changes.back().removed.end},
                                  {added.begin, changes.back().added.end}};
            else
                changes.push_back({removed, added});
        }
        std::reverse(changes.begin(), changes.end());
        return changes;
    }

    [[nodiscard]] Extent extentOf(Index at, std::size_t count) const {
        const std::size_t begin = begin_ + static_cast<std::size_t>(at);
        return {begin, begin + count};
    }

    const Lines& before_;
    const Lines& after_;
    std::size_t begin_ = 0; ///< of what differs, in both
    Ends end_;              ///< of what differs
    std::vector<std::vector<Index>> rounds_;
};

} // namespace

std::vector<LineChange> lineScript(const std::vector<std::string_view>& before,
                                   const std::vector<std::string_view>& after) {
    return Middle(before, after).changes();
}

} // namespace specloom::source_edit
