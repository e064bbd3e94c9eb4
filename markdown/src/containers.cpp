#include "markdown/containers.h"

#include "foundation/ascii.h"

#include <algorithm> // std::min

namespace specloom::markdown {
namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

/// What begins a block quote or a list item at the front of the rest of a line: of "1." that is the full stop
/// (CommonMark 0.30, sections 5.1 and 5.2). Empty where there is none.
std::string_view containerMark(std::string_view rest) {
    if (rest.starts_with('>'))
        return rest.substr(0, 1);
    std::size_t at = 0;
    while (at < rest.size() && ascii::isDigit(rest[at]))
        ++at;
    const std::string_view marks = at == 0 ? "-+*" : ".)";
    if (at == rest.size() || marks.find(rest[at]) == std::string_view::npos)
        return {};
    return at + 1 == rest.size() || isBlank(rest[at + 1]) ? rest.substr(at, 1) : std::string_view();
}

/// Such as "- - -": a thematic break, as far as it is no text.
bool isBreak(std::string_view rest) {
    return !rest.starts_with('>') && !ascii::isDigit(rest.front()) && rest.front() != '+' &&
           rest.find_first_not_of(std::string{rest.front(), ' ', '\t'}) == std::string_view::npos;
}

/// The offset in a line of the first mark that is too deep; npos when there is none.
std::size_t deepMark(std::string_view line) {
    std::size_t column = 0;
    for (std::size_t at = 0; at < line.size();) {
        if (isBlank(line[at])) {
            column += line[at] == '\t' ? 4 : 1;
            ++at;
            continue;
        }
        const std::string_view rest = line.substr(at);
        const std::string_view mark = containerMark(rest);
        if (mark.empty())
            break;
        const auto offset = static_cast<std::size_t>(mark.data() - line.data());
        if (column >= deepestContainer)
            return isBreak(rest) ? std::string_view::npos : offset;
        column += offset + 1 - at;
        at = offset + 1;
    }
    return std::string_view::npos;
}

} // namespace

std::optional<std::string> withoutDeepContainers(std::string_view text) {
    std::optional<std::string> result;
    std::size_t copied = 0;
    for (std::size_t begin = 0; begin < text.size();) {
        std::size_t end = std::min(text.find('\n', begin), text.size());
        // No byte takes more than the four columns of a tab, so short lines need not be looked into.
        if (4 * (end - begin) >= deepestContainer) {
            end = std::min(text.substr(0, end).find('\r', begin), end);
            if (const std::size_t mark = deepMark(text.substr(begin, end - begin));
                mark != std::string_view::npos) {
                if (!result)
                    result.emplace();
                result->append(text.substr(copied, begin + mark - copied)).append("\\");
                copied = begin + mark;
            }
        }
        begin = end + 1;
    }
    if (result)
        result->append(text.substr(copied));
    return result;
}

} // namespace specloom::markdown
