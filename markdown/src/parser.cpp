#include "markdown/parser.h"

#include "foundation/strings.h"
#include "markdown/character_reference.h"
#include "markdown/containers.h"

#include <algorithm> // std::min
#include <exception> // std::exception_ptr
#include <new>       // std::bad_alloc
#include <optional>  // std::optional

#include <md4c.h>

namespace specloom::markdown {
namespace {

static_assert(MD_DIALECT_COMMONMARK == 0, "flags of extensions stand alone");
constexpr int endOfParse = -1; // what a callback returns to end it; positive numbers do not from everywhere
constexpr std::string_view nullCharacter = "\uFFFD"; // what stands for it

/// What stands beside the text: a destination or a title.
std::string attributeText(const MD_ATTRIBUTE& attribute) {
    std::string text;
    for (std::size_t i = 0; attribute.size > 0 && attribute.substr_offsets[i] < attribute.size; ++i) {
        const std::string_view piece(attribute.text + attribute.substr_offsets[i],
                                     attribute.substr_offsets[i + 1] - attribute.substr_offsets[i]);
        const std::string resolved =
            attribute.substr_types[i] == MD_TEXT_ENTITY ? resolveCharacterReference(piece) : std::string();
        if (attribute.substr_types[i] == MD_TEXT_NULLCHAR)
            text += nullCharacter;
        else
            text += resolved.empty() ? piece : std::string_view(resolved);
    }
    return text;
}

Link toLink(const MD_ATTRIBUTE& destination, const MD_ATTRIBUTE& title) {
    return {.destination = attributeText(destination),
            .writtenDestination = {destination.text, destination.size},
            .title = attributeText(title)};
}

BlockKind toBlockKind(MD_BLOCKTYPE type) {
    switch (type) {
    case MD_BLOCK_QUOTE:
        return BlockKind::Quote;
    case MD_BLOCK_UL:
        return BlockKind::UnorderedList;
    case MD_BLOCK_OL:
        return BlockKind::OrderedList;
    case MD_BLOCK_LI:
        return BlockKind::Item;
    case MD_BLOCK_HR:
        return BlockKind::ThematicBreak;
    case MD_BLOCK_H:
        return BlockKind::Heading;
    case MD_BLOCK_CODE:
        return BlockKind::Code;
    case MD_BLOCK_HTML:
        return BlockKind::Html;
    case MD_BLOCK_TABLE:
        return BlockKind::Table;
    case MD_BLOCK_THEAD:
        return BlockKind::TableHead;
    case MD_BLOCK_TBODY:
        return BlockKind::TableBody;
    case MD_BLOCK_TR:
        return BlockKind::TableRow;
    case MD_BLOCK_TH:
        return BlockKind::TableHeaderCell;
    case MD_BLOCK_TD:
        return BlockKind::TableCell;
    default: // those of extensions do not come
        return BlockKind::Paragraph;
    }
}

Alignment toAlignment(MD_ALIGN align) {
    switch (align) {
    case MD_ALIGN_LEFT:
        return Alignment::Left;
    case MD_ALIGN_CENTER:
        return Alignment::Center;
    case MD_ALIGN_RIGHT:
        return Alignment::Right;
    case MD_ALIGN_DEFAULT:
        break;
    }
    return Alignment::None;
}

Block toBlock(MD_BLOCKTYPE type, const void* detail) {
    Block block;
    block.kind = toBlockKind(type);
    if (type == MD_BLOCK_OL)
        block.start = static_cast<const MD_BLOCK_OL_DETAIL*>(detail)->start;
    else if (type == MD_BLOCK_H)
        block.level = static_cast<const MD_BLOCK_H_DETAIL*>(detail)->level;
    else if (type == MD_BLOCK_CODE)
        block.language = attributeText(static_cast<const MD_BLOCK_CODE_DETAIL*>(detail)->lang);
    else if (type == MD_BLOCK_TH || type == MD_BLOCK_TD)
        block.alignment = toAlignment(static_cast<const MD_BLOCK_TD_DETAIL*>(detail)->align);
    return block;
}

SpanKind toSpanKind(MD_SPANTYPE type) {
    switch (type) {
    case MD_SPAN_STRONG:
        return SpanKind::Strong;
    case MD_SPAN_CODE:
        return SpanKind::Code;
    case MD_SPAN_A:
        return SpanKind::Link;
    case MD_SPAN_IMG:
        return SpanKind::Image;
    default: // those of extensions do not come
        return SpanKind::Emphasis;
    }
}

/// The parser is written in C: exceptions must not pass through it.
class Callbacks {
  public:
    explicit Callbacks(Handler& handler) : handler_(handler) {}

    void parse(std::string_view text, unsigned flags) {
        MD_PARSER parser{};
        parser.flags = flags;
        parser.enter_block = [](MD_BLOCKTYPE type, void* detail, void* self) {
            static_cast<Callbacks*>(self)->isInCell_ = type == MD_BLOCK_TH || type == MD_BLOCK_TD;
            return guarded(self, [&](Handler& handler) {
                if (type != MD_BLOCK_DOC)
                    handler.openBlock(toBlock(type, detail));
            });
        };
        parser.leave_block = [](MD_BLOCKTYPE type, void* detail, void* self) {
            return guarded(self, [&](Handler& handler) {
                if (type != MD_BLOCK_DOC)
                    handler.closeBlock(toBlock(type, detail));
            });
        };
        parser.enter_span = [](MD_SPANTYPE type, void* detail, void* self) {
            return guarded(self, [&](Handler& handler) { enterSpan(type, detail, handler); });
        };
        parser.leave_span = [](MD_SPANTYPE type, void*, void* self) {
            return guarded(self, [&](Handler& handler) { handler.closeSpan(toSpanKind(type)); });
        };
        parser.text = [](MD_TEXTTYPE type, const MD_CHAR* piece, MD_SIZE size, void* self) {
            if (type == MD_TEXT_CODE && static_cast<Callbacks*>(self)->isInCell_)
                return guarded(self, [&](Handler& handler) { showCodeOfCell({piece, size}, handler); });
            return guarded(self, [&](Handler& handler) { showText(type, {piece, size}, handler); });
        };
        const int status = md_parse(text.data(), static_cast<MD_SIZE>(text.size()), &parser, this);
        if (failure_)
            std::rethrow_exception(failure_);
        if (status != 0) // the parser itself fails for lack of memory alone
            throw std::bad_alloc();
    }

  private:
    template <typename Function>
    static int guarded(void* self, const Function& call) {
        auto& callbacks = *static_cast<Callbacks*>(self);
        try {
            call(callbacks.handler_);
            return 0;
        } catch (...) {
            callbacks.failure_ = std::current_exception();
            return endOfParse;
        }
    }

    static void enterSpan(MD_SPANTYPE type, const void* detail, Handler& handler) {
        handler.openSpan(toSpanKind(type));
        if (type == MD_SPAN_A) {
            const auto& link = *static_cast<const MD_SPAN_A_DETAIL*>(detail);
            handler.link(toLink(link.href, link.title));
        } else if (type == MD_SPAN_IMG) {
            const auto& image = *static_cast<const MD_SPAN_IMG_DETAIL*>(detail);
            handler.link(toLink(image.src, image.title));
        }
    }

    static void showText(MD_TEXTTYPE type, std::string_view text, Handler& handler) {
        switch (type) {
        case MD_TEXT_NORMAL:
            handler.text(text);
            break;
        case MD_TEXT_NULLCHAR:
            handler.text(nullCharacter);
            break;
        case MD_TEXT_ENTITY:
            handler.characterReference(text, resolveCharacterReference(text));
            break;
        case MD_TEXT_BR:
        case MD_TEXT_SOFTBR:
            handler.lineBreak(type == MD_TEXT_BR);
            break;
        case MD_TEXT_HTML:
            handler.html(withoutNull(text));
            break;
        case MD_TEXT_CODE:
        case MD_TEXT_LATEXMATH:
            handler.code(withoutNull(text));
            break;
        }
    }

    /// The backslash before a vertical bar is the table's, in code too.
    static void showCodeOfCell(std::string_view text, Handler& handler) {
        std::string code(withoutNull(text));
        replaceAll(code, "\\|", "|");
        handler.code(code);
    }

    /// The parser says null characters of code and HTML twice: as such, and at the front of the next piece.
    static std::string_view withoutNull(std::string_view piece) {
        return piece.substr(piece.starts_with('\0') ? 1 : 0);
    }

    Handler& handler_;
    std::exception_ptr failure_;
    bool isInCell_ = false; ///< of a table, which holds no blocks
};

/// Adds up what the parser reads anew for each use of a link reference definition: a short text can ask for a
/// square of its length. Ends the parse when that is too much.
class ReferenceCount {
  public:
    explicit ReferenceCount(std::string_view text) : left_(text.size() + mostReferenceBytes) {}

    [[nodiscard]] bool isWithinBounds(std::string_view text) {
        MD_PARSER parser{};
        parser.flags = MD_DIALECT_COMMONMARK;
        parser.enter_block = parser.leave_block = [](MD_BLOCKTYPE, void*, void*) { return 0; };
        parser.leave_span = [](MD_SPANTYPE, void*, void*) { return 0; };
        parser.text = [](MD_TEXTTYPE, const MD_CHAR*, MD_SIZE, void*) { return 0; };
        parser.enter_span = [](MD_SPANTYPE type, void* detail, void* self) {
            auto& count = *static_cast<ReferenceCount*>(self);
            if (type == MD_SPAN_A) {
                const auto& link = *static_cast<const MD_SPAN_A_DETAIL*>(detail);
                return count.take(link.href, link.title);
            }
            if (type == MD_SPAN_IMG) {
                const auto& image = *static_cast<const MD_SPAN_IMG_DETAIL*>(detail);
                return count.take(image.src, image.title);
            }
            return 0;
        };
        md_parse(text.data(), static_cast<MD_SIZE>(text.size()), &parser, this);
        return left_ > 0;
    }

  private:
    int take(const MD_ATTRIBUTE& destination, const MD_ATTRIBUTE& title) {
        const std::size_t size = std::size_t{destination.size} + title.size;
        left_ -= std::min(left_, size);
        return left_ == 0 ? endOfParse : 0;
    }

    std::size_t left_;
};

/// Nothing when the text is as good as it is.
std::optional<std::string> withoutCostlyReferences(std::string_view text) {
    constexpr std::string_view definition = "]:";
    if (text.find(definition) == std::string_view::npos || ReferenceCount(text).isWithinBounds(text))
        return std::nullopt;
    std::string result(text);
    replaceAll(result, definition, "]\\:");
    return result;
}

/// Whether a text with tables has no more cells than parse() says: a wide table of short rows would have a
/// square of its length.
bool hasReasonableTables(std::string_view text) {
    std::size_t left = text.size() + mostFilledCells;
    MD_PARSER parser{};
    parser.flags = MD_FLAG_TABLES;
    parser.enter_block = [](MD_BLOCKTYPE type, void*, void* self) {
        auto& cellsLeft = *static_cast<std::size_t*>(self);
        if (type != MD_BLOCK_TD && type != MD_BLOCK_TH)
            return 0;
        return --cellsLeft == 0 ? endOfParse : 0;
    };
    parser.leave_block = [](MD_BLOCKTYPE, void*, void*) { return 0; };
    parser.enter_span = parser.leave_span = [](MD_SPANTYPE, void*, void*) { return 0; };
    parser.text = [](MD_TEXTTYPE, const MD_CHAR*, MD_SIZE, void*) { return 0; };
    md_parse(text.data(), static_cast<MD_SIZE>(text.size()), &parser, &left);
    return left > 0;
}

} // namespace

void parse(std::string_view text, Handler& handler, const ParseOptions& options) {
    const std::optional<std::string> shallow = withoutDeepContainers(text);
    const std::string_view bounded = shallow ? std::string_view(*shallow) : text;
    const std::optional<std::string> cheap = withoutCostlyReferences(bounded);
    const std::string_view parsed = cheap ? std::string_view(*cheap) : bounded;
    const bool hasTables =
        options.tables && parsed.find('|') != std::string_view::npos && hasReasonableTables(parsed);
    Callbacks(handler).parse(parsed, hasTables ? MD_FLAG_TABLES : MD_DIALECT_COMMONMARK);
}

} // namespace specloom::markdown
