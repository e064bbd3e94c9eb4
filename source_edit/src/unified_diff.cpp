#include "source_edit/unified_diff.h"

#include "foundation/printable.h"
#include "source_edit/line_script.h"

#include <algorithm> // std::max, std::min
#include <iterator>  // std::back_inserter

#include <fmt/format.h>

namespace specloom::source_edit {
namespace {

constexpr std::size_t linesAround = 3;

[[nodiscard]] std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return lines;
}

[[nodiscard]] std::size_t beginOfLine(std::string_view text, std::size_t at) {
    const std::size_t last = at == 0 ? std::string_view::npos : text.rfind('\n', at - 1);
    return last == std::string_view::npos ? 0 : last + 1;
}

[[nodiscard]] std::size_t endOfLine(std::string_view text, std::size_t at) {
    const std::size_t end = text.find('\n', at);
    return end == std::string_view::npos ? text.size() : end + 1;
}

/// The changes as whole lines, those that meet as one.
[[nodiscard]] std::vector<Change> wholeLines(std::string_view before, std::span<const Change> changes) {
    std::vector<Change> regions;
    for (const Change& change : changes) {
        const std::size_t begin = beginOfLine(before, change.before.begin);
        const std::size_t end = endOfLine(before, change.before.end);
        const Change region = {{begin, end},
                               {change.after.begin - (change.before.begin - begin),
                                change.after.end + (end - change.before.end)}};
        if (!regions.empty() && region.before.begin < regions.back().before.end) {
            regions.back().before.end = std::max(regions.back().before.end, end);
            regions.back().after.end = region.after.end;
        } else {
            regions.push_back(region);
        }
    }
    return regions;
}

/// Lines of both texts from the first that differs to the last; numbers count from 0.
struct Block {
    std::size_t firstBefore;
    std::size_t firstAfter;
    std::vector<std::string_view> removed;
    std::vector<std::string_view> added;
};

class DiffWriter {
  public:
    DiffWriter(std::string_view before, std::string_view path) : lines_(linesOf(before)), path_(path) {}

    void add(Block block) {
        if (!blocks_.empty() && block.firstBefore > endBefore() + 2 * linesAround)
            writeHunk();
        blocks_.push_back(std::move(block));
    }

    [[nodiscard]] std::string finish() {
        if (!blocks_.empty())
            writeHunk();
        return std::move(out_);
    }

  private:
    [[nodiscard]] std::size_t endBefore() const {
        return blocks_.back().firstBefore + blocks_.back().removed.size();
    }

    void writeHunk() {
        if (out_.empty())
            out_ = fmt::format("--- {0}\n+++ {0}\n", printable(path_));
        const std::size_t begin =
            blocks_.front().firstBefore - std::min(blocks_.front().firstBefore, linesAround);
        const std::size_t end = std::min(endBefore() + linesAround, lines_.size());
        std::size_t countAfter = end - begin;
        for (const Block& block : blocks_)
            countAfter += block.added.size() - block.removed.size();
        const std::size_t beginAfter = blocks_.front().firstAfter - (blocks_.front().firstBefore - begin);
        fmt::format_to(std::back_inserter(out_), "@@ -{} +{} @@\n", range(begin, end - begin),
                       range(beginAfter, countAfter));
        std::size_t at = begin;
        for (const Block& block : blocks_) {
            for (; at < block.firstBefore; ++at)
                line(' ', lines_[at]);
            for (const std::string_view removed : block.removed)
                line('-', removed);
            for (const std::string_view added : block.added)
                line('+', added);
            at += block.removed.size();
        }
        for (; at < end; ++at)
            line(' ', lines_[at]);
        blocks_.clear();
    }

    /// As diff(1) has it: an empty range stands behind a line.
    [[nodiscard]] static std::string range(std::size_t begin, std::size_t count) {
        if (count == 1)
            return fmt::format("{}", begin + 1);
        return fmt::format("{},{}", count == 0 ? begin : begin + 1, count);
    }

    void line(char sign, std::string_view text) {
        (out_ += sign) += text;
        if (!text.ends_with('\n'))
            out_ += "\n\\ No newline at end of file\n";
    }

    std::vector<std::string_view> lines_;
    std::string_view path_;
    std::vector<Block> blocks_; ///< of the hunk that is open
    std::string out_;
};

} // namespace

std::string unifiedDiff(std::string_view path, std::string_view before, std::string_view after,
                        std::span<const Change> changes) {
    DiffWriter writer(before, path);
    std::size_t at = 0;
    std::size_t lineBefore = 0;
    std::size_t lineAfter = 0;
    for (const Change& region : wholeLines(before, changes)) {
        const auto skipped = static_cast<std::size_t>(
            std::count(before.begin() + static_cast<std::ptrdiff_t>(at),
                       before.begin() + static_cast<std::ptrdiff_t>(region.before.begin), '\n'));
        lineBefore += skipped;
        lineAfter += skipped;
        const std::vector<std::string_view> removed = linesOf(region.before.of(before));
        const std::vector<std::string_view> added = linesOf(region.after.of(after));
        for (const LineChange& change : lineScript(removed, added)) {
            const auto part = [](const std::vector<std::string_view>& lines, Extent extent) {
                return std::vector<std::string_view>(lines.begin() +
                                                         static_cast<std::ptrdiff_t>(extent.begin),
                                                     lines.begin() + static_cast<std::ptrdiff_t>(extent.end));
            };
            writer.add({lineBefore + change.removed.begin, lineAfter + change.added.begin,
                        part(removed, change.removed), part(added, change.added)});
        }
        lineBefore += removed.size();
        lineAfter += added.size();
        at = region.before.end;
    }
    return writer.finish();
}

} // namespace specloom::source_edit
