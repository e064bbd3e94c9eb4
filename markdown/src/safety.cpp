#include "markdown/safety.h"

#include "foundation/ascii.h"
#include "markdown/parser.h"

#include <algorithm> // std::ranges::find
#include <array>     // std::array

namespace specloom::markdown {
namespace {

constexpr std::array<std::string_view, 4> safeSchemes = {"http", "https", "mailto", "tel"};

/// The scheme of a URL (RFC 3986, section 3.1), in lower case; empty when the destination has none. Browsers
/// drop control characters and spaces in front, and tabs and line ends anywhere (WHATWG URL, section 4.4):
/// dropping all of them everywhere is simpler and errs on the safe side.
std::string schemeOf(std::string_view destination) {
    std::string scheme;
    for (const char c : destination) {
        if (c == ':' && !scheme.empty())
            return scheme;
        if (static_cast<unsigned char>(c) <= 0x20 || c == 0x7F)
            continue;
        const bool isLetter = ascii::isLetter(c);
        const bool mayFollow = ascii::isDigit(c) || c == '+' || c == '-' || c == '.';
        if (!isLetter && (scheme.empty() || !mayFollow))
            return {};
        scheme += ascii::toLower(c);
    }
    return {};
}

/// Whether it is worth parsing: HTML and automatic links need a "<", other links a "]", and their schemes a
/// colon or a character reference to one. Most descriptions have none of these.
bool canBeUnsafe(std::string_view text) {
    return text.find('<') != std::string_view::npos ||
           (text.find(']') != std::string_view::npos && text.find_first_of(":&") != std::string_view::npos);
}

class UnsafeContentHandler final : public Handler {
  public:
    void html(std::string_view /*piece*/) override { content.html = true; }
    void link(const Link& link) override {
        if (!content.destination && !isSafeDestination(link.destination))
            content.destination = link.writtenDestination;
    }

    UnsafeContent content;
};

} // namespace

bool isSafeDestination(std::string_view destination) {
    const std::string scheme = schemeOf(destination);
    return scheme.empty() || std::ranges::find(safeSchemes, scheme) != safeSchemes.end();
}

UnsafeContent unsafeContentOf(std::string_view text) {
    UnsafeContentHandler handler;
    if (canBeUnsafe(text))
        parse(text, handler);
    return handler.content;
}

} // namespace specloom::markdown
