#include "openapi_lint/rules/safe_markdown.h"

#include <algorithm> // std::find
#include <array>     // std::array
#include <optional>  // std::optional

#include <fmt/format.h>

#include "foundation/ascii.h"
#include "openapi_lint/markdown.h"
#include "openapi_lint/markdown_texts.h"

namespace specloom::openapi_lint {
namespace {

constexpr const char* rawHtml = "Markdown text contains raw HTML";
constexpr const char* unsafeLink = "Markdown text contains an unsafe link: {}";

constexpr std::array<std::string_view, 4> safeSchemes = {"http", "https", "mailto", "tel"};

/// The scheme of a URL (RFC 3986, section 3.1), in lower case; empty when the destination has none. Browsers
/// drop control characters and blanks in front, and tabs and line ends anywhere (WHATWG URL, section 4.4):
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

bool isSafeDestination(std::string_view destination) {
    const std::string scheme = schemeOf(destination);
    return scheme.empty() || std::find(safeSchemes.begin(), safeSchemes.end(), scheme) != safeSchemes.end();
}

/// The first of either that a text holds.
class Findings final : public MarkdownHandler {
  public:
    void html() override { hasHtml = true; }
    void link(const MarkdownLink& link) override {
        // Shown as it is written: that can be found in the document, and holds no line feed.
        if (!unsafeDestination && !isSafeDestination(link.destination))
            unsafeDestination = link.writtenDestination;
    }

    bool hasHtml = false;
    std::optional<std::string> unsafeDestination;
};

/// Whether it is worth parsing: HTML and automatic links need a "<", other links a "]", and their schemes a
/// colon or a character reference to one. Most descriptions have none of these.
bool canHoldFindings(std::string_view text) {
    return text.find('<') != std::string_view::npos ||
           (text.find(']') != std::string_view::npos && text.find_first_of(":&") != std::string_view::npos);
}

class SafeMarkdownHandler final : public MarkdownTextsHandler {
  public:
    using MarkdownTextsHandler::MarkdownTextsHandler;

  protected:
    void visitTexts(const openapi::Node& node, const NodeTexts& texts) override {
        if (!texts.description || !canHoldFindings(*texts.description))
            return;
        Findings findings;
        parseMarkdown(*texts.description, findings);
        if (findings.hasHtml)
            report(rawHtml, node);
        if (findings.unsafeDestination)
            report(fmt::format(unsafeLink, *findings.unsafeDestination), node);
    }
};

} // namespace

void SafeMarkdown::check(LintContext& context) {
    SafeMarkdownHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
