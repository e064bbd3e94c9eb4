#include "source_edit/gaps.h"

#include <algorithm> // std::min
#include <vector>    // std::vector

namespace specloom::source_edit {
namespace {

constexpr std::string_view lineBreaks = "\r\n";

[[nodiscard]] bool isBreak(char c) {
    return c == '\r' || c == '\n';
}

[[nodiscard]] std::size_t lineEndAt(std::string_view text, std::size_t at) {
    return std::min(text.find_first_of(lineBreaks, at), text.size());
}

/// Behind the line break at `at`, which is there.
[[nodiscard]] std::size_t behindBreak(std::string_view text, std::size_t at) {
    return at + (text.substr(at, 2) == "\r\n" ? 2 : 1);
}

/// A line of a gap.
struct Line {
    std::size_t begin;
    std::size_t content; ///< of its first byte that is no blank
    std::size_t end;     ///< without its line break
    bool isWhole;        ///< ends in a line break

    [[nodiscard]] bool isComment(std::string_view text) const {
        return content < end && text[content] == '#';
    }
    [[nodiscard]] bool isBlank() const { return content == end; }
};

[[nodiscard]] Line lineAt(std::string_view text, std::size_t begin) {
    const std::size_t end = lineEndAt(text, begin);
    return {begin, std::min(text.find_first_not_of(" \t", begin), end), end, end < text.size()};
}

/// The lines behind the first one.
[[nodiscard]] std::vector<Line> linesBehind(std::string_view text, std::size_t at) {
    std::vector<Line> lines;
    while (at < text.size()) {
        lines.push_back(lineAt(text, behindBreak(text, at)));
        at = lines.back().end;
    }
    return lines;
}

/// Where the comments of the child in front end: `lineEnd`, the end of its line, or that of the last line of
/// those that follow at once and stand deeper than `column`.
[[nodiscard]] std::size_t endOfDeeperComments(std::string_view text, const std::vector<Line>& lines,
                                              std::size_t lineEnd, std::size_t column) {
    for (const Line& line : lines) {
        if (line.isComment(text) && line.content - line.begin > column)
            lineEnd = line.end;
        else if (!line.isBlank() || !line.isWhole)
            break;
    }
    return lineEnd;
}

/// Where the comments right above the last line begin, behind `from`.
[[nodiscard]] std::size_t beginOfComments(std::string_view text, const std::vector<Line>& lines,
                                          std::size_t from) {
    std::size_t begin = text.size();
    for (std::size_t place = lines.size(); place-- > 1;) {
        const Line& line = lines[place - 1];
        if (line.begin < from || !line.isComment(text))
            break;
        begin = line.content;
    }
    return begin;
}

/// Where the comment on the rest of a line begins, with the blanks in front of it; nothing when there is
/// something else.
[[nodiscard]] std::optional<std::size_t> commentOnLine(std::string_view text, const Line& line) {
    if (line.isBlank())
        return line.end;
    if (!line.isComment(text) || (line.content == line.begin && line.begin != 0))
        return std::nullopt;
    return line.begin;
}

[[nodiscard]] std::optional<Gap> splitBlockGap(std::string_view text, const GapPlace& place) {
    const Line first = lineAt(text, 0);
    const std::optional<std::size_t> comment = commentOnLine(text, first);
    const std::vector<Line> lines = linesBehind(text, first.end);
    if (!comment || lines.empty())
        return std::nullopt;
    for (const Line& line : lines)
        if (!line.isBlank() && !line.isComment(text))
            return std::nullopt;
    const std::size_t lineEnd = *comment < first.end ? first.end : 0;
    std::size_t tailEnd = endOfDeeperComments(text, lines, first.end, place.column);
    if (tailEnd == first.end)
        tailEnd = lineEnd;
    const std::size_t leadBegin = beginOfComments(text, lines, tailEnd);
    return Gap{std::string(text.substr(0, tailEnd)), "",
               std::string(text.substr(tailEnd, leadBegin - tailEnd)), std::string(text.substr(leadBegin))};
}

/// Where the comma of a gap in brackets is; npos when there is none. Nothing when there is anything but it,
/// blanks and comments.
[[nodiscard]] std::optional<std::size_t> findComma(std::string_view text) {
    std::size_t comma = std::string_view::npos;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '#')
            at = lineEndAt(text, at);
        else if (text[at] == ',' && comma == std::string_view::npos)
            comma = at;
        else if (!isBreak(text[at]) && text[at] != ' ' && text[at] != '\t' && text[at] != '\v' &&
                 text[at] != '\f')
            return std::nullopt;
    }
    return comma;
}

[[nodiscard]] std::optional<Gap> splitFlowGap(std::string_view text, const GapPlace& place) {
    const std::optional<std::size_t> comma = findComma(text);
    if (!comma)
        return std::nullopt;
    const bool hasComma = *comma != std::string_view::npos;
    if (place.hasFormer ? place.hasNext && !hasComma : hasComma)
        return std::nullopt;
    Gap gap;
    std::string_view head = hasComma ? text.substr(0, *comma) : std::string_view();
    std::string_view rest = hasComma ? text.substr(*comma + 1) : text;
    if (const std::size_t comment = head.find('#'); comment != std::string_view::npos) {
        if (head.find('#', lineEndAt(head, comment)) != std::string_view::npos ||
            lineAt(head, 0).content != comment)
            return std::nullopt; // comments of several lines in front of the comma
        gap.tail = head.substr(0, lineEndAt(head, comment));
        head = {};
    }
    gap.before = std::string(head) + (hasComma ? "," : "");
    const Line first = lineAt(rest, 0);
    if (first.isComment(rest)) {
        gap.tail += rest.substr(0, first.end);
        rest.remove_prefix(first.end);
    }
    const std::vector<Line> lines = linesBehind(rest, lineEndAt(rest, 0));
    const std::size_t leadBegin = place.hasNext ? beginOfComments(rest, lines, 0) : rest.size();
    gap.after = rest.substr(0, leadBegin);
    gap.lead = rest.substr(leadBegin);
    return gap;
}

} // namespace

std::optional<Gap> splitGap(std::string_view text, const GapPlace& place) {
    return place.isFlow ? splitFlowGap(text, place) : splitBlockGap(text, place);
}

std::size_t beginOfLead(std::string_view text, std::size_t child) {
    const auto lineBegin = [&](std::size_t at) {
        const std::size_t last = at == 0 ? std::string_view::npos : text.find_last_of(lineBreaks, at - 1);
        return last == std::string_view::npos ? 0 : last + 1;
    };
    std::size_t begin = child;
    std::size_t line = lineBegin(child);
    if (text.find_first_not_of(" \t", line) != child)
        return child; // something stands in front of it
    while (line > 0) {
        const std::size_t lineBreak = line - (line > 1 && text.substr(line - 2, 2) == "\r\n" ? 2 : 1);
        line = lineBegin(lineBreak);
        const std::size_t content = text.find_first_not_of(" \t", line);
        if (content >= lineBreak || text[content] != '#')
            break;
        begin = content;
    }
    return begin;
}

std::size_t endOfTail(std::string_view text, std::size_t end, std::size_t column) {
    const Line first = lineAt(text, end);
    std::size_t tailEnd = first.isComment(text) && first.content > first.begin ? first.end : end;
    std::size_t at = first.end;
    while (at < text.size()) {
        const Line line = lineAt(text, behindBreak(text, at));
        if (line.isComment(text) && line.content - line.begin > column)
            tailEnd = line.end;
        else if (!line.isBlank())
            break;
        at = line.end;
    }
    return tailEnd;
}

std::string joinedAfter(std::string_view first, std::string_view second) {
    const std::size_t lastBreak = first.find_last_of(lineBreaks);
    if (lastBreak == std::string_view::npos)
        return std::string(second);
    const std::size_t cut = lastBreak - (lastBreak > 0 && first.substr(lastBreak - 1, 2) == "\r\n" ? 1 : 0);
    return std::string(first.substr(0, cut)) + std::string(second);
}

} // namespace specloom::source_edit
