#include "markdown/raw_html.h"

#include "foundation/ascii.h"
#include "foundation/strings.h"
#include "markdown/character_reference.h"

#include <algorithm> // std::min
#include <array>     // std::array
#include <utility>   // std::move

namespace specloom::markdown {
namespace {

constexpr std::size_t longestReference = 34; // of the names of HTML, with "&" and ";"

/// What a page does not show: how it begins, and what ends it.
struct Invisible {
    std::string_view begin;
    std::string_view end;
};
constexpr std::array<Invisible, 4> invisibles = {{
    {"<!--", "-->"},
    {"<![CDATA[", "]]>"},
    {"<!", ">"},
    {"<?", "?>"},
}};

/// Reads the parts of a tag (CommonMark 0.30, section 6.6). What cannot be read leaves the place where it
/// begins.
class TagCursor {
  public:
    explicit TagCursor(std::string_view text) noexcept : text_(text) {}

    [[nodiscard]] std::size_t at() const noexcept { return at_; }
    bool take(char c) noexcept {
        const bool here = at_ < text_.size() && text_[at_] == c;
        at_ += here ? 1 : 0;
        return here;
    }
    std::string_view takeName() noexcept {
        if (at_ == text_.size() || !(ascii::isLetter(text_[at_]) || text_[at_] == '_' || text_[at_] == ':'))
            return {};
        return takeWhile(
            [](char c) { return ascii::isAlphanumeric(c) || c == '_' || c == ':' || c == '.' || c == '-'; });
    }
    bool takeSpace() noexcept { return !takeWhile(ascii::isSpace<char>).empty(); }
    /// Behind "=".
    std::optional<std::string_view> takeValue() noexcept {
        for (const char quote : {'"', '\''})
            if (take(quote)) {
                const std::string_view value = takeWhile([quote](char c) { return c != quote; });
                return take(quote) ? std::optional(value) : std::nullopt;
            }
        const std::string_view value = takeWhile([](char c) {
            return !ascii::isSpace(c) && std::string_view("\"'=<>`").find(c) == std::string_view::npos;
        });
        return value.empty() ? std::nullopt : std::optional(value);
    }

  private:
    template <typename Predicate>
    std::string_view takeWhile(Predicate belongs) noexcept {
        const std::size_t begin = at_;
        while (at_ < text_.size() && belongs(text_[at_]))
            ++at_;
        return text_.substr(begin, at_ - begin);
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

/// An attribute behind white space; false for a fault.
bool takeAttribute(TagCursor& cursor, RawTag& tag) {
    const std::string_view name = cursor.takeName();
    if (name.empty())
        return false;
    std::string_view value;
    TagCursor behind = cursor;
    behind.takeSpace();
    if (behind.take('=')) {
        behind.takeSpace();
        const std::optional<std::string_view> written = behind.takeValue();
        cursor = behind;
        if (!written)
            return false;
        value = *written;
    }
    tag.attributes.push_back({name, resolveCharacterReferences(value)});
    return true;
}

/// A tag from its "<" on; without a name where there is none. The cursor ends behind it, or where it fails.
bool takeTag(TagCursor& cursor, RawTag& tag) {
    cursor.take('<');
    tag.isClosing = cursor.take('/');
    tag.name = toLowerCase(cursor.takeName());
    if (tag.name.empty())
        return false;
    while (true) {
        const bool spaced = cursor.takeSpace();
        if (cursor.take('>'))
            return true;
        if (!tag.isClosing && cursor.take('/'))
            return cursor.take('>');
        if (tag.isClosing || !spaced || !takeAttribute(cursor, tag))
            return false;
    }
}

} // namespace

std::string resolveCharacterReferences(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const std::size_t plain = std::min(text.find('&'), text.size());
        result.append(text.substr(0, plain));
        text.remove_prefix(plain);
        const std::size_t end = text.substr(0, longestReference).find(';');
        const std::string character = end == std::string_view::npos
                                          ? std::string()
                                          : resolveCharacterReference(text.substr(0, end + 1));
        const std::size_t size = character.empty() ? std::min<std::size_t>(text.size(), 1) : end + 1;
        result.append(character.empty() ? text.substr(0, size) : std::string_view(character));
        text.remove_prefix(size);
    }
    return result;
}

std::optional<RawPiece> RawHtmlReader::next() {
    while (skipInvisible()) {
    }
    if (rest_.empty())
        return std::nullopt;
    const std::string_view begin = rest_;
    if (begin.front() == '<')
        if (std::optional<RawTag> tag = readTag())
            return RawPiece{.tag = std::move(tag), .text = {}};
    // Of what is no tag, readTag() has taken what it has read: it would be read again and again else.
    rest_.remove_prefix(std::min(rest_.find('<'), rest_.size()));
    return RawPiece{.tag = {}, .text = begin.substr(0, begin.size() - rest_.size())};
}

/// What is not ended is no comment nor the like.
bool RawHtmlReader::skipInvisible() {
    for (std::size_t kind = 0; kind < invisibles.size(); ++kind) {
        const Invisible& invisible = invisibles[kind];
        if (!rest_.starts_with(invisible.begin))
            continue;
        if (endless_[kind])
            return false;
        // The dashes of "<!-->" and "<!--->" end it, too.
        const std::size_t inside = invisible.end == "-->" ? 2 : invisible.begin.size();
        const std::size_t end = rest_.find(invisible.end, inside);
        endless_[kind] = end == std::string_view::npos;
        if (endless_[kind])
            return false;
        rest_.remove_prefix(end + invisible.end.size());
        return true;
    }
    return false;
}

std::optional<RawTag> RawHtmlReader::readTag() {
    TagCursor cursor(rest_);
    RawTag tag;
    const bool whole = takeTag(cursor, tag);
    tag.written = rest_.substr(0, cursor.at());
    rest_.remove_prefix(cursor.at());
    return whole ? std::optional(std::move(tag)) : std::nullopt;
}

} // namespace specloom::markdown
