#pragma once

#include <cstddef>     // std::size_t
#include <cstdint>     // std::uint8_t
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::markdown {

enum class BlockKind : std::uint8_t {
    Quote,
    UnorderedList,
    OrderedList,
    Item, ///< of a list
    ThematicBreak,
    Heading,
    Code,
    Html,
    Paragraph, ///< an item of a tight list has its text without one
    // Of tables:
    Table,
    TableHead,
    TableBody,
    TableRow,
    TableHeaderCell,
    TableCell,
};

enum class Alignment : std::uint8_t { None, Left, Center, Right };

struct Block {
    BlockKind kind = BlockKind::Paragraph;
    unsigned level = 0;                    ///< of a heading, 1 to 6
    unsigned start = 0;                    ///< of an ordered list: the number of its first item
    std::string language;                  ///< of a code block: the first word of its info string
    Alignment alignment = Alignment::None; ///< of a cell
};

enum class SpanKind : std::uint8_t { Emphasis, Strong, Code, Link, Image };

/// A link or an image.
struct Link {
    std::string destination;             ///< with character references resolved
    std::string_view writtenDestination; ///< with all of them as they are; good until the hook ends
    std::string title;                   ///< empty when there is none
};

/// What parse() tells about a text, in its order. Hooks that are not said to do something do nothing here.
class Handler {
  public:
    virtual ~Handler() = default;

    virtual void openBlock(const Block& /*block*/) {}
    /// By lineEnd().
    virtual void closeBlock(const Block& /*block*/) { lineEnd(); }
    /// Of a link or an image, link() follows.
    virtual void openSpan(SpanKind /*kind*/) {}
    virtual void closeSpan(SpanKind /*kind*/) {}

    /// A piece of the text that a reader sees; a word may come in several pieces.
    virtual void text(std::string_view /*piece*/) {}
    /// A character reference in it, with what it stands for, or nothing when HTML does not know its name. By
    /// text(): of the character, or of the reference.
    virtual void characterReference(std::string_view written, std::string_view character) {
        text(character.empty() ? written : character);
    }
    /// The end of a line within a block: a hard break (CommonMark, section 6.7) or a soft one. By lineEnd().
    virtual void lineBreak(bool /*isHard*/) { lineEnd(); }
    /// A word cannot go on over this: the end of a line or of a block.
    virtual void lineEnd() {}
    /// A piece of a code span or of a code block, whose lines end with line feeds.
    virtual void code(std::string_view /*piece*/) {}
    /// A piece of raw HTML: of a block, whose lines end with line feeds, or of an inline tag.
    virtual void html(std::string_view /*piece*/) {}
    /// Before the text of the link or image.
    virtual void link(const Link& /*link*/) {}

  protected:
    Handler() = default;
    Handler(const Handler&) = default;
    Handler& operator=(const Handler&) = default;
};

/// How many bytes of destinations and titles a text may ask for beyond its own length. Only with link
/// reference definitions, which it may use more than once, can it ask for more than that length.
inline constexpr std::size_t mostReferenceBytes = 100'000;

/// How many cells tables may have beyond a text's own length in bytes: each row gets the cells that it lacks.
inline constexpr std::size_t mostFilledCells = 10'000;

struct ParseOptions {
    bool tables = false; ///< those of GitHub's Markdown (its specification 0.29, section 4.10)
};

/// Parses CommonMark (version 0.30), without extensions but those of the options, in time in proportion to
/// the text. For that, block quotes and list items beyond the column deepestContainer of containers.h are
/// text, and so are all link reference definitions of a text that asks for more than mostReferenceBytes by
/// them; a backslash, which shows only in code, takes their meaning from them. All tables of a text that asks
/// for more than mostFilledCells are text too. What a hook throws ends the parse.
void parse(std::string_view text, Handler& handler, const ParseOptions& options = {});

} // namespace specloom::markdown
