#include "jv/yaml_marks.h"
#include "source_edit/layout.h"

#include <algorithm>     // std::max, std::min
#include <cstdint>       // std::uint64_t
#include <unordered_map> // std::unordered_map
#include <utility>       // std::move

namespace specloom::source_edit {
namespace {

constexpr std::string_view byteOrderMark = "\xef\xbb\xbf";

/// Bytes of a UTF-8 text by code points. The places that are asked for lie near each other.
class ByteOffsets {
  public:
    explicit ByteOffsets(std::string_view text)
        : text_(text), byte_(text.starts_with(byteOrderMark) ? byteOrderMark.size() : 0) {}

    [[nodiscard]] std::size_t of(std::size_t index) {
        for (; index_ < index && byte_ < text_.size(); ++index_)
            do
                ++byte_;
            while (isInside());
        for (; index_ > index && byte_ > 0; --index_)
            do
                --byte_;
            while (byte_ > 0 && isInside());
        return byte_;
    }

  private:
    [[nodiscard]] bool isInside() const {
        return byte_ < text_.size() && (static_cast<unsigned char>(text_[byte_]) & 0xc0U) == 0x80U;
    }

    std::string_view text_;
    std::size_t byte_;
    std::size_t index_ = 0; ///< of the code point at byte_
};

[[nodiscard]] std::uint64_t placeKey(std::uint64_t line, std::uint64_t column) {
    return line << 32U | column;
}

[[nodiscard]] bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

[[nodiscard]] bool isLineBreak(char c) {
    return c == '\n' || c == '\r';
}

/// The end of a block scalar without the line breaks behind it that are none of its text's. The header says
/// whether blank lines are.
[[nodiscard]] std::size_t endOfBlockScalar(std::string_view text, Extent scalar) {
    const std::string_view header =
        text.substr(scalar.begin, text.find_first_of("\r\n#", scalar.begin) - scalar.begin);
    const bool keepsLines = header.find('+') != std::string_view::npos;
    std::size_t end = scalar.end;
    bool lineBreakIsCut = false;
    while (end > scalar.begin && (isBlank(text[end - 1]) || isLineBreak(text[end - 1]))) {
        if (isLineBreak(text[end - 1])) {
            if (keepsLines && lineBreakIsCut)
                break;
            lineBreakIsCut = true;
            end -= end - 1 > scalar.begin && text.substr(end - 2, 2) == "\r\n" ? 2 : 1;
        } else {
            --end;
        }
    }
    return end;
}

/// Follows the events of a text and notes what stands in the containers that are asked for.
class MarkReader {
  public:
    MarkReader(std::string_view text, std::span<const jv::JV* const> containers)
        : text_(text), offsets_(text) {
        for (const jv::JV* container : containers)
            if (const jv::Pos pos = container->pos(); pos.isKnown())
                wanted_.emplace(
                    placeKey(static_cast<std::uint64_t>(pos.line), static_cast<std::uint64_t>(pos.column)),
                    container);
    }

    [[nodiscard]] Layouts run() {
        if (!wanted_.empty())
            jv::visitYamlMarks(text_, [&](const jv::YamlEventMarks& event) { return accept(event); });
        return std::move(layouts_);
    }

  private:
    using Kind = jv::YamlEventMarks::Kind;

    struct Frame {
        const jv::JV* container; ///< null for one that is not asked for
        Layout layout;
        bool isMapping;
        bool expectsKey;
    };
    /// The end of the value that was met last.
    struct End {
        jv::YamlMark begin{};
        jv::YamlMark end{};
        bool isBlockScalar = false;
    };

    /// False when nothing is left to be found.
    bool accept(const jv::YamlEventMarks& event) {
        const bool ends = event.kind == Kind::SequenceEnd || event.kind == Kind::MappingEnd;
        if (!ends)
            startNode(event);
        switch (event.kind) {
        case Kind::Scalar:
        case Kind::Alias:
            last_ = {event.begin, event.end, event.isBlockScalar};
            endNode();
            break;
        case Kind::SequenceStart:
        case Kind::MappingStart:
            open(event);
            break;
        case Kind::SequenceEnd:
        case Kind::MappingEnd:
            close(event);
            endNode();
            break;
        }
        return !wanted_.empty();
    }

    void open(const jv::YamlEventMarks& event) {
        const bool isMapping = event.kind == Kind::MappingStart;
        frames_.push_back({nullptr, {}, isMapping, isMapping});
        Frame& frame = frames_.back();
        frame.layout.isFlow = event.isFlow;
        const auto found = wanted_.find(placeKey(event.begin.line, event.begin.column));
        if (found == wanted_.end() || found->second->isObject() != isMapping)
            return;
        frame.container = found->second;
        frame.layout.whole.begin = offsets_.of(event.begin.index);
    }

    void close(const jv::YamlEventMarks& event) {
        if (frames_.back().layout.isFlow)
            last_ = {event.begin, event.end, false};
        Frame frame = std::move(frames_.back());
        frames_.pop_back();
        if (frame.container == nullptr)
            return;
        frame.layout.whole.end = endOfLast();
        if (!frame.layout.isFlow && frame.isMapping)
            settleMapping(frame.layout);
        else if (!frame.layout.isFlow)
            settleSequence(frame.layout);
        if (frame.layout.children.size() == frame.container->size())
            layouts_.insert_or_assign(frame.container, std::move(frame.layout));
        wanted_.erase(placeKey(static_cast<std::uint64_t>(frame.container->pos().line),
                               static_cast<std::uint64_t>(frame.container->pos().column)));
    }

    /// A key or a value begins in the innermost container.
    void startNode(const jv::YamlEventMarks& event) {
        if (frames_.empty() || frames_.back().container == nullptr)
            return;
        Frame& frame = frames_.back();
        if (!frame.isMapping || frame.expectsKey) {
            ChildLayout& child = frame.layout.children.emplace_back();
            child.whole.begin = offsets_.of(event.begin.index);
            (frame.isMapping ? child.key : child.value).begin = child.whole.begin;
            if (frame.layout.children.size() == 1)
                frame.layout.column = event.begin.column;
            if (frame.isMapping && event.kind != Kind::Scalar)
                frame.layout.isUsable = false;
        } else {
            frame.layout.children.back().value.begin = offsets_.of(event.begin.index);
        }
    }

    void endNode() {
        if (frames_.empty() || !frames_.back().isMapping) {
            endValue();
            return;
        }
        Frame& frame = frames_.back();
        if (frame.expectsKey && frame.container != nullptr)
            frame.layout.children.back().key.end = offsets_.of(last_.end.index);
        if (!frame.expectsKey)
            endValue();
        frame.expectsKey = !frame.expectsKey;
    }

    void endValue() {
        if (frames_.empty() || frames_.back().container == nullptr)
            return;
        ChildLayout& child = frames_.back().layout.children.back();
        child.value.end = std::max(endOfLast(), child.value.begin);
        child.endsInBlockScalar = last_.isBlockScalar;
        child.whole.end = std::max(child.value.end, child.key.end);
        if (child.value.begin == child.value.end) // of an empty value the place may be anywhere behind
            while (child.whole.end > std::max(child.key.end, child.whole.begin) &&
                   (isBlank(text_[child.whole.end - 1]) || isLineBreak(text_[child.whole.end - 1])))
                --child.whole.end;
    }

    [[nodiscard]] std::size_t endOfLast() {
        const std::size_t end = offsets_.of(last_.end.index);
        return last_.isBlockScalar ? endOfBlockScalar(text_, {offsets_.of(last_.begin.index), end}) : end;
    }

    /// An anchor and a tag may stand far in front of the first key; the sign of a key belongs to it.
    void settleMapping(Layout& layout) const {
        const ChildLayout& first = layout.children.front();
        if (layout.whole.begin < first.whole.begin && text_[layout.whole.begin] == '?')
            layout.column = columnOf(layout.whole.begin);
        else
            layout.whole.begin = first.whole.begin;
    }

    /// Finds the dashes of a sequence, which are in no event: each stands first on its line, in the column of
    /// the first one, behind the element before.
    void settleSequence(Layout& layout) const {
        std::size_t at = layout.whole.begin;
        for (ChildLayout& child : layout.children) {
            const bool isFirst = &child == &layout.children.front();
            const std::size_t dash =
                isFirst ? firstDash(at, child.value.begin) : dashBehind(at, child.value.begin, layout.column);
            layout.isUsable = layout.isUsable && dash != std::string_view::npos;
            if (!layout.isUsable)
                return;
            if (isFirst)
                layout.column = columnOf(dash);
            child.whole.begin = dash;
            child.whole.end = std::max(child.whole.end, dash + 1);
            at = child.whole.end;
        }
        layout.whole.begin = layout.children.front().whole.begin;
    }

    /// The dash at `at`, behind an anchor and a tag if there are any.
    [[nodiscard]] std::size_t firstDash(std::size_t at, std::size_t end) const {
        while (at < end && (text_[at] == '&' || text_[at] == '!')) {
            at = std::min(text_.find_first_of(" \t\r\n", at), end);
            at = std::min(text_.find_first_not_of(" \t\r\n", at), end);
        }
        return at < end && text_[at] == '-' ? at : std::string_view::npos;
    }

    [[nodiscard]] std::size_t dashBehind(std::size_t at, std::size_t end, std::size_t column) const {
        while ((at = text_.find_first_of("\r\n", at)) < end) {
            at = text_.find_first_not_of("\r\n", at);
            const std::size_t dash = at == std::string_view::npos ? at : text_.find_first_not_of(' ', at);
            if (dash < end && text_[dash] == '-' && columnOf(dash) == column)
                return dash;
        }
        return std::string_view::npos;
    }

    /// Code points in front of a place, on its line.
    [[nodiscard]] std::size_t columnOf(std::size_t at) const {
        std::size_t column = 0;
        while (at > 0 && !isLineBreak(text_[at - 1])) {
            --at;
            column += (static_cast<unsigned char>(text_[at]) & 0xc0U) != 0x80U ? 1 : 0;
        }
        return at == 0 && text_.starts_with(byteOrderMark) && column > 0 ? column - 1 : column;
    }

    std::string_view text_;
    ByteOffsets offsets_;
    std::unordered_map<std::uint64_t, const jv::JV*> wanted_;
    Layouts layouts_;
    std::vector<Frame> frames_;
    End last_;
};

} // namespace

Layouts findYamlLayouts(std::string_view text, std::span<const jv::JV* const> containers) {
    return MarkReader(text, containers).run();
}

} // namespace specloom::source_edit
