#pragma once

#include <cstddef>          // std::size_t
#include <initializer_list> // std::initializer_list
#include <string>           // std::string
#include <string_view>      // std::string_view
#include <vector>           // std::vector

namespace specloom::templating {

/// A template of fixed text and places for values alone, "{{name}}", for lines that are written by the ten
/// thousand: it is read once, and filled without the template engine.
class Snippet {
  public:
    /// `names` are those of all places that the text may have. `text` outlives the snippet. Throws
    /// TemplateError "Unknown place in a snippet: {}" for a place of another name.
    Snippet(std::string_view text, std::initializer_list<std::string_view> names);

    /// Appends the text with the values in their places; `values` stand in the order of the names, and are as
    /// many.
    void append(std::initializer_list<std::string_view> values, std::string& out) const;

  private:
    struct Piece {
        std::string_view text;
        std::size_t value; ///< that stands behind it; beyond the last for none
    };

    std::vector<Piece> pieces_;
};

} // namespace specloom::templating
