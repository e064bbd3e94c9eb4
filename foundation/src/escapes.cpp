#include "foundation/escapes.h"

#include "foundation/ascii.h"
#include "foundation/printable.h"

namespace specloom {

std::string escapeHtml(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (const char c : text) {
        switch (c) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        case '{':
            result += "&lcub;";
            break;
        case '}':
            result += "&rcub;";
            break;
        default:
            result += c;
        }
    }
    return result;
}

std::string escapeHtmlDoubleQuoted(std::string_view text) {
    return escapeDoubleQuoted(escapeHtml(text));
}

namespace {

std::string escapeQuoted(std::string_view text, char quote) {
    constexpr std::string_view plain = "\\\b\f\n\r\t";
    constexpr std::string_view escapes = "\\bfnrt";
    std::string result;
    result.reserve(text.size());
    for (const char c : text) {
        const std::size_t index = plain.find(c);
        if (index != std::string_view::npos)
            (result += '\\') += escapes[index];
        else if (c == quote)
            (result += '\\') += quote;
        else
            result += c;
    }
    return result;
}

} // namespace

std::string escapeSingleQuoted(std::string_view text) {
    return escapeQuoted(text, '\'');
}

std::string escapeDoubleQuoted(std::string_view text) {
    return escapeQuoted(text, '"');
}

std::string toJsonLiteral(std::string_view text) {
    std::string result = "\"";
    for (const char c : escapeDoubleQuoted(text)) {
        if (const auto byte = static_cast<unsigned char>(c); byte < 0x20)
            appendUnicodeEscape(byte, result);
        else
            result += c;
    }
    return result += '"';
}

std::string toJavaScriptLiteral(std::string_view text) {
    return "'" + escapeSingleQuoted(text) + "'";
}

namespace {

/// Judges the bytes of a text by those around them, as the viewers of Markdown do.
class MarkdownBytes {
  public:
    explicit MarkdownBytes(std::string_view text) noexcept : text_(text) {}

    /// Whether the byte would be taken for Markdown. An underscore within a word is none, and paths are full
    /// of them.
    [[nodiscard]] bool isMarkup(std::size_t at) const noexcept {
        if (text_[at] == '_')
            return !isWord(at - 1) || !isWord(at + 1);
        return std::string_view("\\`*[]<>&|~").find(text_[at]) != std::string_view::npos;
    }

    /// Whether viewers would make a link of the byte and those around it. They look for links in what
    /// Markdown shows, so that a backslash is no help.
    [[nodiscard]] bool isLink(std::size_t at) const noexcept {
        switch (text_[at]) {
        case '@':
            return isWord(at + 1) || byteAt(at + 1) == '_' || byteAt(at + 1) == '-';
        case ':':
            return text_.substr(at).starts_with("://");
        case '.':
            return endsWithWord(at, "www");
        case '#':
        case '!':
            return ascii::isDigit(byteAt(at + 1));
        case '-':
            return ascii::isDigit(byteAt(at + 1)) && endsWithWord(at, "gh");
        default:
            return false;
        }
    }

  private:
    /// NUL outside of the text: the offset may be one before the first, which is beyond the last.
    [[nodiscard]] char byteAt(std::size_t at) const noexcept { return at < text_.size() ? text_[at] : '\0'; }
    [[nodiscard]] bool isWord(std::size_t at) const noexcept { return ascii::isAlphanumeric(byteAt(at)); }

    /// Whether that word, in lower case, stands before the offset, in any case.
    [[nodiscard]] bool endsWithWord(std::size_t end, std::string_view word) const noexcept {
        if (end < word.size() || isWord(end - word.size() - 1))
            return false;
        for (std::size_t i = 0; i < word.size(); ++i)
            if (ascii::toLower(text_[end - word.size() + i]) != word[i])
                return false;
        return true;
    }

    std::string_view text_;
};

} // namespace

std::string escapeMarkdown(std::string_view text) {
    const MarkdownBytes bytes(text);
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (bytes.isLink(at)) {
            result += '\\'; // Markdown takes the backslash of the escape for one of its own
            appendUnicodeEscape(static_cast<unsigned char>(text[at]), result);
            continue;
        }
        if (bytes.isMarkup(at))
            result += '\\';
        result += text[at];
    }
    return result;
}

std::string escapeTap(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (const char c : text) {
        if (c == '\\' || c == '#')
            result += '\\';
        result += c;
    }
    return result;
}

} // namespace specloom
