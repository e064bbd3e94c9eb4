#include "source_edit/container_text.h"

#include "source_edit/edited_values.h"
#include "source_edit/gaps.h"

#include <algorithm> // std::any_of, std::min
#include <optional>  // std::optional
#include <utility>   // std::move

namespace specloom::source_edit {
namespace {

[[nodiscard]] std::string indentationOf(const Layout& layout) {
    return layout.isFlow ? std::string() : std::string(layout.column, ' ');
}

[[nodiscard]] bool isChangedValue(const EditedContainer& container, const EditedChild& child) {
    const jv::JV* before = container.before[child.from].value;
    return child.value != before && !child.value->equals(*before);
}

/// The brackets of a container in flow style; npos where there is none.
[[nodiscard]] std::size_t openingBracket(std::string_view text, Extent whole) {
    constexpr std::string_view white = " \t\r\n";
    std::size_t at = whole.begin;
    while (at < whole.end && (text[at] == '&' || text[at] == '!')) {
        at = std::min(text.find_first_of(white, at), whole.end);
        at = std::min(text.find_first_not_of(white, at), whole.end);
    }
    return at < whole.end && (text[at] == '{' || text[at] == '[') ? at : std::string_view::npos;
}

/// A container whose children go, come or move: made of the texts of the children and of what stands between
/// them.
class Arrangement {
  public:
    Arrangement(const TextAround& around, const Edits& edits, const EditedContainer& container,
                const Layout& layout, const Replacements& replacements)
        : around_(around), edits_(edits), container_(container), layout_(layout), replacements_(replacements),
          indentation_(indentationOf(layout)) {}

    /// Where it stands now.
    [[nodiscard]] Extent extent() const noexcept { return extent_; }

    /// Nothing when the text has something that is not understood.
    [[nodiscard]] std::optional<std::string> compose() {
        if (!(layout_.isFlow ? findBrackets() : findBlock()) || !splitGaps() || !findBodies())
            return std::nullopt;
        keepRemarks();
        return joined();
    }

  private:
    struct Piece {
        std::string lead;
        std::string body;
        std::string tail;
    };

    bool findBrackets() {
        const std::size_t open = openingBracket(around_.text, layout_.whole);
        if (open == std::string_view::npos)
            return false;
        inside_ = {open + 1, layout_.whole.end - 1};
        extent_ = {open, layout_.whole.end};
        return inside_.begin <= inside_.end;
    }

    bool findBlock() {
        if (layout_.children.empty() || container_.children.empty())
            return false;
        const Extent whole = {layout_.children.front().whole.begin, layout_.children.back().whole.end};
        inside_ = {beginOfLead(around_.text, whole.begin),
                   endOfTail(around_.text, whole.end, layout_.column)};
        if (isRoot()) // what stands above is about the document
            inside_.begin = whole.begin;
        extent_ = inside_;
        return true;
    }

    [[nodiscard]] bool isRoot() const { return container_.container == edits_.source().root(); }

    /// gaps_[i] stands in front of the child i, the last one behind all.
    bool splitGaps() {
        const std::size_t count = layout_.children.size();
        gaps_.resize(count + 1);
        for (std::size_t place = 0; place <= count; ++place) {
            const std::size_t begin = place == 0 ? inside_.begin : layout_.children[place - 1].whole.end;
            const std::size_t end = place == count ? inside_.end : layout_.children[place].whole.begin;
            if (begin > end)
                return false;
            const std::string_view text = Extent{begin, end}.of(around_.text);
            if (!layout_.isFlow && (place == 0 || place == count)) {
                (place == 0 ? gaps_[place].lead : gaps_[place].tail) = text;
                continue;
            }
            std::optional<Gap> gap =
                splitGap(text, {layout_.isFlow, layout_.column, place != 0, place != count});
            if (!gap)
                return false;
            gaps_[place] = std::move(*gap);
        }
        return true;
    }

    bool findBodies() {
        for (const ChildLayout& child : layout_.children) {
            std::optional<std::string> body = replacements_.slice(child.whole);
            if (!body)
                return false;
            bodies_.push_back(std::move(*body));
        }
        return true;
    }

    [[nodiscard]] bool hasComment(const Gap& gap) const { return gap.after.find('#') != std::string::npos; }

    /// Whether there are comments that are no child's.
    [[nodiscard]] bool hasRemarks() const {
        return !gaps_.front().tail.empty() ||
               std::any_of(gaps_.begin(), gaps_.end(), [&](const Gap& gap) { return hasComment(gap); });
    }

    /// A comment in front of a child that goes, which is not the child's, stays; and so does the line end,
    /// when the child is the first of several on its line.
    void keepRemarks() {
        std::vector<bool> stays(layout_.children.size());
        for (const EditedChild& child : container_.children)
            if (child.from != EditedChild::isNew)
                stays[child.from] = true;
        for (std::size_t place = 1; place < stays.size(); ++place) {
            std::string& next = gaps_[place + 1].after;
            if (stays[place])
                continue;
            if (hasComment(gaps_[place]))
                next = joinedAfter(gaps_[place].after, next);
            else if (beginsWithBreak(gaps_[place].after) && !beginsWithBreak(next) &&
                     place + 1 < stays.size())
                next = gaps_[place].after;
        }
    }

    /// The same children in another order: what stands between them does not move.
    [[nodiscard]] bool isPermutation() const {
        return container_.children.size() == layout_.children.size() &&
               std::none_of(container_.children.begin(), container_.children.end(),
                            [](const EditedChild& child) { return child.from == EditedChild::isNew; });
    }

    [[nodiscard]] Gap separatorOf(std::size_t place) const {
        const EditedChild& child = container_.children[place];
        if (isPermutation())
            return gaps_[place];
        if (child.from != EditedChild::isNew && child.from != 0)
            return gaps_[child.from];
        return usualSeparator();
    }

    [[nodiscard]] Gap usualSeparator() const {
        if (!layout_.isFlow)
            return {"", "", around_.lineEnd + indentation_, ""};
        if (layout_.children.size() > 1 && !hasComment(gaps_[1]))
            return {"", gaps_[1].before, gaps_[1].after, ""};
        const bool isOneLine = gaps_.front().after.find('\n') == std::string::npos;
        if (!isOneLine && !hasComment(gaps_.front()))
            return {"", ",", gaps_.front().after, ""};
        return {"", ",", colon().ends_with(' ') ? " " : "", ""};
    }

    /// Between the keys and the values in brackets.
    [[nodiscard]] std::string colon() const {
        for (const ChildLayout& child : layout_.children)
            if (const std::string_view text = Extent{child.key.end, child.value.begin}.of(around_.text);
                child.key.end < child.value.begin && text.find_first_not_of(": \t") == std::string_view::npos)
                return std::string(text);
        return ": ";
    }

    [[nodiscard]] Piece pieceOf(const EditedChild& child) const {
        if (child.from == EditedChild::isNew)
            return {"", newBody(child), ""};
        return {gaps_[child.from].lead, bodies_[child.from], gaps_[child.from + 1].tail};
    }

    [[nodiscard]] std::string newBody(const EditedChild& child) const {
        const Surroundings surroundings{around_.format, layout_.isFlow, around_.lineEnd, indentation_};
        // In brackets keys have quotes where all texts have.
        const std::string value = child.value->isString() && siblingKey().starts_with('"')
                                      ? renderedString(child.value->text(), siblingKey(), surroundings)
                                      : renderedValue(*editedValue(edits_, *child.value), surroundings);
        const bool beginsLine = value.starts_with('\r') || value.starts_with('\n');
        if (!container_.container->isObject())
            return layout_.isFlow ? value : (beginsLine ? "-" : "- ") + value;
        const std::string key = renderedString(child.key, siblingKey(), surroundings);
        return key + (layout_.isFlow ? colon() : beginsLine ? ":" : ": ") + value;
    }

    /// A key whose quotes a new one takes over: in brackets alone, where all keys tend to have them.
    [[nodiscard]] std::string_view siblingKey() const {
        return layout_.isFlow && !layout_.children.empty() ? layout_.children.back().key.of(around_.text)
                                                           : std::string_view();
    }

    [[nodiscard]] static bool beginsWithBreak(std::string_view text) {
        const std::size_t at = text.find_first_not_of(" \t");
        return at != std::string_view::npos && (text[at] == '\n' || text[at] == '\r');
    }

    std::optional<std::string> joined() {
        if (!layout_.isFlow)
            return children() && endBlock() ? std::optional(out_) : std::nullopt;
        out_ += around_.text[extent_.begin];
        if (container_.children.empty() || layout_.children.empty()) {
            if (hasRemarks())
                return std::nullopt;
            if (!container_.children.empty() && !children())
                return std::nullopt;
        } else {
            out_.append(gaps_.front().tail).append(gaps_.front().after);
            if (!children())
                return std::nullopt;
            appendSeparator(gaps_.back());
        }
        return out_ += around_.text[extent_.end - 1];
    }

    /// All of them, and `tail_` becomes the comments of the last one.
    bool children() {
        for (std::size_t place = 0; place < container_.children.size(); ++place) {
            if (place != 0)
                appendSeparator(separatorOf(place));
            const Piece piece = pieceOf(container_.children[place]);
            if (!piece.lead.empty() && !isAtLineBegin()) {
                if (!layout_.isFlow)
                    return false;
                out_ += around_.lineEnd + std::string(layout_.column, ' ');
            }
            out_.append(piece.lead).append(piece.body);
            tail_ = piece.tail;
        }
        return true;
    }

    void appendSeparator(const Gap& separator) {
        out_ += separator.before;
        out_ += tail_;
        if (!tail_.empty() && !beginsWithBreak(separator.after))
            out_ += around_.lineEnd;
        out_ += separator.after;
        tail_.clear();
    }

    /// Whether only blanks stand in front of what comes next, on its line.
    [[nodiscard]] bool isAtLineBegin() const {
        constexpr std::string_view breaks = "\r\n";
        const std::size_t last = out_.find_last_of(breaks);
        if (last != std::string::npos)
            return out_.find_first_not_of(" \t", last + 1) == std::string::npos;
        const std::string_view before = around_.text.substr(0, extent_.begin);
        const std::size_t line = before.find_last_of(breaks);
        return (out_ + std::string(before.substr(line == std::string_view::npos ? 0 : line + 1)))
                   .find_first_not_of(" \t") == std::string::npos;
    }

    bool endBlock() {
        out_ += tail_;
        if (extent_.end == inside_.end)
            out_ += gaps_.back().after;
        const EditedChild& last = container_.children.back();
        const bool needsLineEnd =
            last.from != EditedChild::isNew && layout_.children[last.from].endsInBlockScalar;
        if (needsLineEnd && extent_.end == around_.text.size())
            out_ += around_.lineEnd;
        return true;
    }

    const TextAround& around_;
    const Edits& edits_;
    const EditedContainer& container_;
    const Layout& layout_;
    const Replacements& replacements_;
    std::string indentation_;
    Extent inside_;
    Extent extent_;
    std::vector<Gap> gaps_;
    std::vector<std::string> bodies_;
    std::string out_;
    std::string tail_; ///< of the child that was written last
};

/// Other keys and values of children that stay.
void editChildren(const TextAround& around, const Edits& edits, const EditedContainer& container,
                  const Layout& layout, Replacements& replacements) {
    const std::string indentation = indentationOf(layout);
    const Surroundings surroundings{around.format, layout.isFlow, around.lineEnd, indentation};
    for (const EditedChild& child : container.children) {
        if (child.from == EditedChild::isNew)
            continue;
        const ChildLayout& place = layout.children[child.from];
        if (child.key != container.before[child.from].key)
            replacements.put(place.key, renderedString(child.key, place.key.of(around.text), surroundings));
        if (!isChangedValue(container, child))
            continue;
        const std::string_view former = place.value.of(around.text);
        std::string value = child.value->isString()
                                ? renderedString(child.value->text(), former, surroundings)
                                : renderedValue(*editedValue(edits, *child.value), surroundings);
        Extent extent = place.value;
        const bool beginsLine = value.starts_with('\r') || value.starts_with('\n');
        while (beginsLine && extent.begin > place.whole.begin && around.text[extent.begin - 1] == ' ')
            --extent.begin;
        replacements.put(extent, former.empty() && !beginsLine ? " " + value : std::move(value));
    }
}

} // namespace

bool editContainer(const TextAround& around, const Edits& edits, const EditedContainer& container,
                   const Layout& layout, Replacements& replacements) {
    if (!layout.isUsable)
        return false;
    editChildren(around, edits, container, layout, replacements);
    if (container.keepsPlaces())
        return true;
    Arrangement arrangement(around, edits, container, layout, replacements);
    std::optional<std::string> text = arrangement.compose();
    if (text)
        replacements.put(arrangement.extent(), std::move(*text));
    return text.has_value();
}

void renderContainer(const TextAround& around, const Edits& edits, const EditedContainer& container,
                     const Layout& layout, Replacements& replacements) {
    const std::string indentation = indentationOf(layout);
    const Surroundings surroundings{around.format, layout.isFlow, around.lineEnd, indentation};
    replacements.put(layout.whole, renderedBlock(*editedValue(edits, *container.container), surroundings));
}

} // namespace specloom::source_edit
