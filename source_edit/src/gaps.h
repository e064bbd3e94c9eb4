#pragma once

#include <cstddef>     // std::size_t
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view

// What stands between the children of a container: comments, which go where their child goes, and the rest,
// which stays in its place.
namespace specloom::source_edit {

struct Gap {
    std::string tail;   ///< comments of the child in front: on its line, or deeper than the children stand
    std::string before; ///< in brackets, up to the comma and with it
    std::string after;  ///< line ends, blank lines, comments of nobody, indentation
    std::string lead;   ///< comments on the lines right above the child behind, with its indentation
};

/// What is asked of a gap.
struct GapPlace {
    bool isFlow = true;
    std::size_t column = 0; ///< of the children of a block
    bool hasFormer = true;  ///< a child stands in front, not the beginning of the container
    bool hasNext = true;    ///< a child follows, not the end of the container
};

/// The parts of the text between two children; nothing when there is something else in it, as the question
/// mark of a key.
[[nodiscard]] std::optional<Gap> splitGap(std::string_view text, const GapPlace& place);

/// Where the comments begin that stand on the lines right above the child at `child`, each on its own;
/// `child` itself when there are none.
[[nodiscard]] std::size_t beginOfLead(std::string_view text, std::size_t child);
/// Where the comments end that belong to the last child of a block, which ends at `end`.
[[nodiscard]] std::size_t endOfTail(std::string_view text, std::size_t end, std::size_t column);

/// Two parts Gap::after in one, when the child between them is gone.
[[nodiscard]] std::string joinedAfter(std::string_view first, std::string_view second);

} // namespace specloom::source_edit
