#include "source_edit/layout.h"

#include <algorithm> // std::min, std::sort
#include <cstdint>   // std::int32_t
#include <utility>   // std::move

namespace specloom::source_edit {
namespace {

/// Finds lines, whose numbers count from 1. They end at "\r\n", "\r" and "\n", as for the reader.
class LineFinder {
  public:
    explicit LineFinder(std::string_view text)
        : text_(text), hasReturns_(text.find('\r') != std::string_view::npos) {}

    /// The offset at which a line begins that is no earlier than those asked for before; the end of the text
    /// when there is none.
    [[nodiscard]] std::size_t beginOf(std::int32_t line) {
        for (; line_ < line && at_ < text_.size(); ++line_) {
            const std::size_t end = hasReturns_ ? text_.find_first_of("\r\n", at_) : text_.find('\n', at_);
            at_ =
                end == std::string_view::npos ? text_.size() : end + (text_.substr(end, 2) == "\r\n" ? 2 : 1);
        }
        return at_;
    }

  private:
    std::string_view text_;
    bool hasReturns_; ///< few texts have any, and one byte is found faster than one of two
    std::size_t at_ = 0;
    std::int32_t line_ = 1;
};

/// Looks at a JSON text that was found to be one, and is safe with every other: what does not fit ends in
/// isGood() being false.
class JsonScanner {
  public:
    JsonScanner(std::string_view text, std::size_t at) : text_(text), at_(at) {}

    [[nodiscard]] bool isGood() const noexcept { return good_; }
    [[nodiscard]] std::size_t at() const noexcept { return at_; }
    [[nodiscard]] char peek() const noexcept { return at_ < text_.size() ? text_[at_] : '\0'; }

    void skipSpace() {
        while (at_ < text_.size() && isSpace(text_[at_]))
            ++at_;
    }
    bool take(char expected) {
        skipSpace();
        if (peek() != expected)
            return false;
        ++at_;
        return true;
    }
    void require(char expected) { good_ = take(expected) && good_; }

    Extent string() {
        const std::size_t begin = at_;
        require('"');
        while (good_ && peek() != '"') {
            at_ += peek() == '\\' ? 2 : 1;
            good_ = at_ < text_.size();
        }
        at_ = std::min(at_ + 1, text_.size());
        return {begin, at_};
    }
    /// Any value, behind white space.
    Extent value() {
        skipSpace();
        const std::size_t begin = at_;
        std::size_t depth = 0;
        do {
            skipSpace();
            const char c = peek();
            if (c == '"')
                string();
            else if (c == '{' || c == '[')
                ++depth, ++at_;
            else if (c == '}' || c == ']')
                good_ = depth-- > 0, ++at_;
            else if (c == ',' || c == ':')
                good_ = depth > 0, ++at_;
            else
                word();
        } while (good_ && depth > 0);
        return {begin, at_};
    }

  private:
    /// As for the reader, which takes the vertical tab and the form feed, too.
    [[nodiscard]] static bool isSpace(char c) noexcept { return c == ' ' || (c >= '\t' && c <= '\r'); }

    void word() {
        const std::size_t begin = at_;
        at_ = std::min(text_.find_first_of(" \t\r\n\v\f,:]}[{\"", at_), text_.size());
        good_ = at_ > begin;
    }

    std::string_view text_;
    std::size_t at_;
    bool good_ = true;
};

[[nodiscard]] Layout jsonLayout(std::string_view text, std::size_t begin, bool isObject) {
    JsonScanner scanner(text, begin);
    Layout layout;
    layout.whole.begin = begin;
    scanner.require(isObject ? '{' : '[');
    const char close = isObject ? '}' : ']';
    while (scanner.isGood() && !scanner.take(close)) {
        if (!layout.children.empty())
            scanner.require(',');
        scanner.skipSpace();
        ChildLayout child;
        child.whole.begin = scanner.at();
        if (isObject) {
            child.key = scanner.string();
            scanner.require(':');
        }
        child.value = scanner.value();
        child.whole.end = child.value.end;
        layout.children.push_back(child);
    }
    layout.whole.end = scanner.at();
    layout.isUsable = scanner.isGood();
    return layout;
}

} // namespace

Layouts findJsonLayouts(std::string_view text, std::span<const jv::JV* const> containers) {
    std::vector<const jv::JV*> inOrder(containers.begin(), containers.end());
    std::sort(inOrder.begin(), inOrder.end(),
              [](const jv::JV* a, const jv::JV* b) { return a->pos().line < b->pos().line; });
    LineFinder lines(text);
    Layouts layouts;
    for (const jv::JV* container : inOrder) {
        const jv::Pos pos = container->pos();
        if (!pos.isKnown())
            continue;
        const std::size_t begin = lines.beginOf(pos.line) + static_cast<std::size_t>(pos.column) - 1;
        Layout layout = jsonLayout(text, begin, container->isObject());
        if (layout.isUsable && layout.children.size() == container->size())
            layouts.emplace(container, std::move(layout));
    }
    return layouts;
}

} // namespace specloom::source_edit
