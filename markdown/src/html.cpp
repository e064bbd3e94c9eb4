#include "markdown/html.h"

#include "foundation/ascii.h"
#include "foundation/escapes.h"
#include "foundation/strings.h"
#include "markdown/parser.h"
#include "markdown/raw_html.h"
#include "markdown/safety.h"

#include <algorithm>     // std::min, std::ranges::all_of, std::ranges::lower_bound
#include <array>         // std::array
#include <cstddef>       // std::size_t
#include <unordered_map> // std::unordered_map
#include <utility>       // std::exchange, std::move
#include <vector>        // std::vector

namespace specloom::markdown {
namespace {

struct RawElement {
    std::string_view name;
    bool isEmpty; ///< has no content and no closing tag
};

/// The elements of raw HTML that a page takes, in byte-wise order: none of which the content is no text for
/// a browser.
constexpr std::array<RawElement, 58> rawElements = {{
    {"a", false},       {"abbr", false},    {"b", false},          {"blockquote", false}, {"br", true},
    {"caption", false}, {"center", false},  {"cite", false},       {"code", false},       {"dd", false},
    {"del", false},     {"details", false}, {"dfn", false},        {"div", false},        {"dl", false},
    {"dt", false},      {"em", false},      {"figcaption", false}, {"figure", false},     {"h1", false},
    {"h2", false},      {"h3", false},      {"h4", false},         {"h5", false},         {"h6", false},
    {"hr", true},       {"i", false},       {"img", true},         {"ins", false},        {"kbd", false},
    {"li", false},      {"mark", false},    {"ol", false},         {"p", false},          {"pre", false},
    {"q", false},       {"s", false},       {"samp", false},       {"section", false},    {"small", false},
    {"span", false},    {"strike", false},  {"strong", false},     {"sub", false},        {"summary", false},
    {"sup", false},     {"table", false},   {"tbody", false},      {"td", false},         {"tfoot", false},
    {"th", false},      {"thead", false},   {"tr", false},         {"tt", false},         {"u", false},
    {"ul", false},      {"var", false},     {"wbr", true},
}};
constexpr std::size_t noElement = rawElements.size();

std::size_t findRawElement(std::string_view name) {
    const auto* found = std::ranges::lower_bound(rawElements, name, {}, &RawElement::name);
    return found != rawElements.end() && found->name == name
               ? static_cast<std::size_t>(found - rawElements.begin())
               : noElement;
}

enum class RawValue { Text, Destination, Number };
struct RawElementAttribute {
    std::string_view element;
    std::string_view name;
    RawValue value;
};
constexpr std::array<RawElementAttribute, 9> rawAttributes = {{
    {"a", "href", RawValue::Destination},
    {"a", "title", RawValue::Text},
    {"img", "src", RawValue::Destination},
    {"img", "alt", RawValue::Text},
    {"img", "title", RawValue::Text},
    {"td", "colspan", RawValue::Number},
    {"td", "rowspan", RawValue::Number},
    {"th", "colspan", RawValue::Number},
    {"th", "rowspan", RawValue::Number},
}};

/// A destination as it stands in an attribute: what a URL cannot hold is percent-encoded (RFC 3986, section
/// 2.1), percent signs stay.
std::string hrefText(std::string_view destination) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (const char c : destination) {
        const auto byte = static_cast<unsigned char>(c);
        if (ascii::isAlphanumeric(c) ||
            std::string_view("-_.+!*'(),%#@?=;:/$~").find(c) != std::string_view::npos)
            text += c;
        else if (c == '&')
            text += "&amp;";
        else
            (text += '%').append({digits[byte / 16], digits[byte % 16]});
    }
    return text;
}

std::string attribute(std::string_view name, std::string_view value) {
    return std::string(" ").append(name).append("=\"").append(value).append("\"");
}

/// An attribute of raw HTML as a page takes it; empty when it does not.
std::string rawAttributeText(const RawAttribute& written, const RawElementAttribute& known) {
    switch (known.value) {
    case RawValue::Destination:
        return isSafeDestination(written.value) ? attribute(known.name, hrefText(written.value)) : "";
    case RawValue::Number:
        return std::ranges::all_of(written.value, ascii::isDigit<char>) ? attribute(known.name, written.value)
                                                                        : "";
    case RawValue::Text:
        break;
    }
    return attribute(known.name, escapeHtml(written.value));
}

std::string rawTagText(const RawTag& tag) {
    std::string text = "<" + tag.name;
    for (const RawElementAttribute& known : rawAttributes)
        for (const RawAttribute& written : tag.attributes)
            if (known.element == tag.name && compareIgnoreCase(known.name, written.name) == 0) {
                text += rawAttributeText(written, known);
                break; // browsers take the first of a name
            }
    return text += rawElements[findRawElement(tag.name)].isEmpty ? " />" : ">";
}

/// The ids of headings.
class HeadingIds {
  public:
    explicit HeadingIds(std::string_view prefix) : prefix_(prefix) {}

    /// Empty where nothing is left of the heading.
    std::string idOf(std::string_view heading) {
        std::string id;
        for (const char c : heading)
            if (ascii::isAlphanumeric(c) || c == '-' || c == '_' || static_cast<unsigned char>(c) >= 0x80)
                id += ascii::toLower(c);
            else if (ascii::isSpace(c))
                id += '-';
        if (id.empty())
            return id;
        std::string unique = id;
        while (!next_.try_emplace(unique, 1).second)
            unique = id + "-" + std::to_string(next_[id]++);
        return prefix_ + unique;
    }

  private:
    std::string prefix_;
    std::unordered_map<std::string, std::size_t> next_; ///< of each id that is taken: the number to try next
};

class HtmlWriter final : public Handler {
  public:
    explicit HtmlWriter(const HtmlOptions& options)
        : options_(options), ids_(options.headingIdPrefix.value_or("")) {}

    [[nodiscard]] std::string take() {
        writeRawHtml();
        closeRawElements();
        endLine();
        return std::move(out_);
    }

    void openBlock(const Block& block) override {
        writeRawHtml();
        endLine();
        switch (block.kind) {
        case BlockKind::Quote:
            open("<blockquote>\n", "</blockquote>\n");
            break;
        case BlockKind::UnorderedList:
            open("<ul>\n", "</ul>\n");
            break;
        case BlockKind::OrderedList:
            open(block.start == 1 ? "<ol>\n"
                                  : "<ol" + attribute("start", std::to_string(block.start)) + ">\n",
                 "</ol>\n");
            break;
        case BlockKind::Item:
            open("<li>", "</li>\n");
            break;
        case BlockKind::ThematicBreak:
            out_ += "<hr />\n";
            break;
        case BlockKind::Heading:
            openHeading(block.level);
            break;
        case BlockKind::Code:
            open("<pre><code" +
                     (block.language.empty() ? ""
                                             : attribute("class", "language-" + escapeHtml(block.language))) +
                     ">",
                 "</code></pre>\n");
            break;
        case BlockKind::Html:
            isInHtmlBlock_ = true;
            break;
        case BlockKind::Paragraph:
            open("<p>", "</p>\n");
            break;
        default:
            openPartOfTable(block);
        }
    }

    void closeBlock(const Block& block) override {
        writeRawHtml();
        switch (block.kind) {
        case BlockKind::Html:
            isInHtmlBlock_ = false;
            endLine();
            break;
        case BlockKind::ThematicBreak:
            break;
        case BlockKind::Heading:
            closeHeading();
            break;
        default:
            closeRawElements();
            if (block.kind == BlockKind::Quote)
                endLine();
            close();
        }
    }

    void openSpan(SpanKind kind) override {
        writeRawHtml();
        span_ = kind;
        if (isInImage())
            imageDepth_ += kind == SpanKind::Image ? 1 : 0;
        else if (kind == SpanKind::Emphasis)
            open("<em>", "</em>");
        else if (kind == SpanKind::Strong)
            open("<strong>", "</strong>");
        else if (kind == SpanKind::Code)
            open("<code>", "</code>");
    }

    void link(const Link& link) override {
        if (isInImage())
            return;
        const std::string title = link.title.empty() ? "" : attribute("title", escapeHtml(link.title));
        if (!isSafeDestination(link.destination)) {
            open("", "");
        } else if (span_ == SpanKind::Link) {
            open("<a" + attribute("href", hrefText(link.destination)) + title + ">", "</a>");
        } else {
            out_.append("<img").append(attribute("src", hrefText(link.destination))).append(" alt=\"");
            imageTitle_ = title;
            imageDepth_ = 1;
        }
    }

    void closeSpan(SpanKind kind) override {
        writeRawHtml();
        if (!isInImage()) {
            closeRawElements();
            close();
        } else if (kind == SpanKind::Image && --imageDepth_ == 0) {
            out_.append("\"").append(imageTitle_).append(" />");
        }
    }

    void text(std::string_view piece) override {
        if (isInHtmlBlock_) { // what stands for a null character
            rawHtml_ += piece;
            return;
        }
        writeRawHtml();
        if (isInHeading_)
            heading_ += piece;
        out_ += escapeHtml(piece);
    }

    void code(std::string_view piece) override { text(piece); }

    void lineBreak(bool isHard) override {
        writeRawHtml();
        if (isInHeading_)
            heading_ += ' ';
        if (isInImage())
            out_ += ' ';
        else
            out_ += isHard ? "<br />\n" : "\n";
    }

    void html(std::string_view piece) override { rawHtml_ += piece; }

  private:
    /// What is open, from the outside in.
    struct Element {
        std::string_view closing;      ///< of Markdown
        std::size_t raw = noElement;   ///< of raw HTML: its index
        std::size_t markdownBelow = 0; ///< of Markdown: markdown_ as it was before
    };

    void open(std::string_view opening, std::string_view closing) {
        out_ += opening;
        elements_.push_back({.closing = closing, .markdownBelow = markdown_});
        markdown_ = elements_.size();
    }

    /// The innermost element, which is one of Markdown.
    void close() {
        out_ += elements_.back().closing;
        markdown_ = elements_.back().markdownBelow;
        elements_.pop_back();
    }

    /// Those within the innermost element of Markdown.
    void closeRawElements() {
        while (elements_.size() > markdown_)
            closeRawElement();
    }

    void closeRawElement() {
        const std::size_t raw = elements_.back().raw;
        out_.append("</").append(rawElements[raw].name).append(">");
        rawPlaces_[raw].pop_back();
        elements_.pop_back();
    }

    void openPartOfTable(const Block& block) {
        constexpr std::array<std::string_view, 4> alignments = {"", "left", "center", "right"};
        const std::string_view align = alignments[static_cast<std::size_t>(block.alignment)];
        const std::string tail = (align.empty() ? "" : attribute("align", align)) + ">";
        if (block.kind == BlockKind::Table)
            open("<table>\n", "</table>\n");
        else if (block.kind == BlockKind::TableHead)
            open("<thead>\n", "</thead>\n");
        else if (block.kind == BlockKind::TableBody)
            open("<tbody>\n", "</tbody>\n");
        else if (block.kind == BlockKind::TableRow)
            open("<tr>\n", "</tr>\n");
        else if (block.kind == BlockKind::TableHeaderCell)
            open("<th" + tail, "</th>\n");
        else
            open("<td" + tail, "</td>\n");
    }

    void openHeading(unsigned level) {
        constexpr std::array<std::array<std::string_view, 2>, 6> tags = {{
            {"<h1>", "</h1>\n"},
            {"<h2>", "</h2>\n"},
            {"<h3>", "</h3>\n"},
            {"<h4>", "</h4>\n"},
            {"<h5>", "</h5>\n"},
            {"<h6>", "</h6>\n"},
        }};
        const std::size_t index =
            std::min<std::size_t>(std::size_t{level} - 1 + options_.headingShift, tags.size() - 1);
        isInHeading_ = true;
        heading_.clear();
        open(tags[index][0], tags[index][1]);
        headingContent_ = out_.size();
    }

    void closeHeading() {
        closeRawElements();
        isInHeading_ = false;
        if (options_.headingIdPrefix)
            if (const std::string id = ids_.idOf(heading_); !id.empty())
                out_.insert(headingContent_ - 1, attribute("id", id));
        close();
    }

    [[nodiscard]] bool isInImage() const noexcept { return imageDepth_ > 0; }

    void endLine() {
        if (!out_.empty() && out_.back() != '\n')
            out_ += '\n';
    }

    /// The raw HTML since something else came. It may come in pieces.
    void writeRawHtml() {
        if (rawHtml_.empty())
            return;
        const std::string html = std::exchange(rawHtml_, {});
        if (isInImage())
            return;
        RawHtmlReader reader(html);
        while (const std::optional<RawPiece> piece = reader.next()) {
            if (piece->tag)
                writeRawTag(*piece->tag);
            else
                out_ += escapeHtml(resolveCharacterReferences(piece->text));
        }
    }

    void writeRawTag(const RawTag& tag) {
        const std::size_t raw = findRawElement(tag.name);
        if (raw == noElement) {
            out_ += escapeHtml(tag.written);
        } else if (tag.isClosing) {
            closeThrough(raw);
        } else {
            out_ += rawTagText(tag);
            if (!rawElements[raw].isEmpty) {
                rawPlaces_[raw].push_back(elements_.size());
                elements_.push_back({.closing = {}, .raw = raw});
            }
        }
    }

    /// The innermost element of that name, with what is open in it, unless an element of Markdown is.
    void closeThrough(std::size_t raw) {
        if (rawPlaces_[raw].empty() || rawPlaces_[raw].back() < markdown_)
            return;
        const std::size_t place = rawPlaces_[raw].back();
        while (elements_.size() > place)
            closeRawElement();
    }

    const HtmlOptions& options_;
    std::string out_;
    std::vector<Element> elements_;
    std::size_t markdown_ =
        0; ///< one more than the index of the innermost element of Markdown; 0 without one
    std::array<std::vector<std::size_t>, rawElements.size()> rawPlaces_; ///< the indices of open elements
    std::string rawHtml_;                                                ///< not written yet
    bool isInHtmlBlock_ = false;
    SpanKind span_ = SpanKind::Link;
    std::size_t imageDepth_ = 0; ///< images within the alternative text of an image, and that image
    std::string imageTitle_;
    HeadingIds ids_;
    bool isInHeading_ = false;
    std::string heading_; ///< its text
    std::size_t headingContent_ = 0;
};

} // namespace

std::string toHtml(std::string_view text, const HtmlOptions& options) {
    HtmlWriter writer(options);
    parse(text, writer, {.tables = options.tables});
    return writer.take();
}

} // namespace specloom::markdown
