#pragma once

#include "jv/deser.h"
#include "jv/jv_document.h"

#include <cstddef>       // std::size_t
#include <span>          // std::span
#include <string_view>   // std::string_view
#include <unordered_map> // std::unordered_map
#include <vector>        // std::vector

// Where the values of a document stand in its text, byte for byte. What readers keep of places is what people
// are told; this is found by a look of its own at the text, only for the containers that are asked for.
namespace specloom::source_edit {

/// Bytes of a text, counted from 0; `end` is the one behind the last.
struct Extent {
    std::size_t begin = 0;
    std::size_t end = 0;

    [[nodiscard]] std::string_view of(std::string_view text) const { return text.substr(begin, end - begin); }
};

/// A member or an element.
struct ChildLayout {
    Extent whole; ///< from its key, or from the dash of a block sequence, to the end of its value
    Extent key;   ///< with quotes; empty for an element
    Extent
        value; ///< with quotes, brackets, the header of a block scalar; empty for a value that is not there
    bool endsInBlockScalar = false; ///< so that a line end is to follow
};

/// A container and its children, in the order of the text.
struct Layout {
    Extent whole;           ///< of a block, from its first child to the end of the last one's value
    bool isFlow = true;     ///< in brackets
    bool isUsable = true;   ///< false when the text has a form in which children cannot be told apart
    std::size_t column = 0; ///< of the children of a block: characters in front of them, on their line
    std::vector<ChildLayout> children;
};

/// By the container. One that was not found is missing.
using Layouts = std::unordered_map<const jv::JV*, Layout>;

/// The layouts of containers of a document that was read from `text`. Where the text is another one now, they
/// are those of something else, or missing: whoever uses them compares the outcome.
[[nodiscard]] Layouts findLayouts(std::string_view text, jv::DocumentFormat format,
                                  std::span<const jv::JV* const> containers);

// Of the two formats.
[[nodiscard]] Layouts findJsonLayouts(std::string_view text, std::span<const jv::JV* const> containers);
[[nodiscard]] Layouts findYamlLayouts(std::string_view text, std::span<const jv::JV* const> containers);

} // namespace specloom::source_edit
