#pragma once

#include "source_edit/layout.h"

#include <cstddef>     // std::size_t
#include <map>         // std::map
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::source_edit {

/// A place in a text, and what stands there in another one that is else the same.
struct Change {
    Extent before;
    Extent after;
};

/// What comes into places of a text, none of which overlap. Inner places come before those around them.
class Replacements {
  public:
    /// The text must outlive this object.
    explicit Replacements(std::string_view text) : text_(text) {}

    /// In the place of all that came into the extent before.
    void put(Extent extent, std::string text);
    /// The text of an extent as it is to be; nothing when a place is only partly in it.
    [[nodiscard]] std::optional<std::string> slice(Extent extent) const;
    [[nodiscard]] std::string wholeText() const {
        return slice({0, text_.size()}).value_or(std::string(text_));
    }
    /// The places in wholeText(), in their order.
    [[nodiscard]] std::vector<Change> changes() const;

  private:
    struct Replacement {
        std::size_t end;
        std::string text;
    };

    std::string_view text_;
    std::map<std::size_t, Replacement> replacements_; ///< by where they begin
};

} // namespace specloom::source_edit
