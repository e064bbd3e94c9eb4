#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_lint {

/// A link or an image.
struct MarkdownLink {
    std::string destination;             ///< with known character references resolved
    std::string_view writtenDestination; ///< with all of them as they are; good until the hook ends
    std::string title;                   ///< empty when there is none
};

/// What parseMarkdown() tells about a text. All hooks do nothing here.
class MarkdownHandler {
  public:
    virtual ~MarkdownHandler() = default;

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
    virtual void link(const MarkdownLink& /*link*/) {}

  protected:
    MarkdownHandler() = default;
    MarkdownHandler(const MarkdownHandler&) = default;
    MarkdownHandler& operator=(const MarkdownHandler&) = default;
};

/// Parses CommonMark (version 0.30), without extensions, in time in proportion to the text. What a hook
/// throws ends the parse.
void parseMarkdown(std::string_view text, MarkdownHandler& handler);

} // namespace specloom::openapi_lint
