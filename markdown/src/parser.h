#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::markdown {

/// A link or an image.
struct Link {
    std::string destination;             ///< with known character references resolved
    std::string_view writtenDestination; ///< with all of them as they are; good until the hook ends
    std::string title;                   ///< empty when there is none
};

/// What parse() tells about a text. All hooks do nothing here.
class Handler {
  public:
    virtual ~Handler() = default;

    /// A piece of the text that a reader sees; a word may come in several pieces. Characters that were
    /// written as character references come as themselves, and as U+FFFD where their name is not known.
    virtual void text(std::string_view /*piece*/) {}
    /// A word cannot go on over this: the end of a line or of a block.
    virtual void lineEnd() {}
    /// A code span. (Code blocks are not told of.)
    virtual void code() {}
    /// A piece of raw HTML: a block or an inline tag.
    virtual void html() {}
    /// Before the text of the link.
    virtual void link(const Link& /*link*/) {}

  protected:
    Handler() = default;
    Handler(const Handler&) = default;
    Handler& operator=(const Handler&) = default;
};

/// Parses CommonMark (version 0.30), without extensions, in time in proportion to the text. What a hook
/// throws ends the parse.
void parse(std::string_view text, Handler& handler);

} // namespace specloom::markdown
