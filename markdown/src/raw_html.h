#pragma once

#include <array>       // std::array
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

// Raw HTML in Markdown, split into what a page may hold. It is judged by what is written anew, never by what
// a browser might make of it: everything that is not understood is text.
namespace specloom::markdown {

struct RawAttribute {
    std::string_view name; ///< as it is written
    std::string value;     ///< with character references resolved
};

struct RawTag {
    std::string name; ///< in lower case
    bool isClosing = false;
    std::vector<RawAttribute> attributes;
    std::string_view written; ///< all of it
};

/// A piece of raw HTML: a tag, or else text.
struct RawPiece {
    std::optional<RawTag> tag;
    std::string_view text; ///< character references stand as they are written
};

/// Reads pieces from the front of raw HTML, in time in proportion to it. Comments, declarations, processing
/// instructions and CDATA sections are skipped.
class RawHtmlReader {
  public:
    explicit RawHtmlReader(std::string_view html) noexcept : rest_(html) {}

    /// Nothing at the end.
    [[nodiscard]] std::optional<RawPiece> next();

  private:
    bool skipInvisible();
    std::optional<RawTag> readTag();

    std::string_view rest_;
    std::array<bool, 4> endless_{}; ///< the kinds of invisible things whose end does not come any more
};

/// A text that holds character references, with them resolved.
[[nodiscard]] std::string resolveCharacterReferences(std::string_view text);

} // namespace specloom::markdown
