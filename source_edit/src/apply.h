#pragma once

#include "jv/deser.h"
#include "source_edit/edits.h"
#include "source_edit/replacements.h"
#include "source_edit/verification.h"

#include <cstddef>     // std::size_t
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::source_edit {

/// A text in which edits were made.
struct EditedText {
    std::string text;
    std::vector<Change> changes;      ///< places in the text before, and in this one, in their order
    std::size_t editedContainers = 0; ///< that were changed in the text
    /// JSON pointers (RFC 6901), in the source, of values whose text could not take the edits and is the
    /// writer's now. Their comments and their layout are gone.
    std::vector<std::string> renderedAnew;
};

/// Makes edits in `text`, from which their source was read. What no edit names stays byte for byte, and
/// children that move take their comments along: those on their lines, and those on the lines right above.
///
/// The new text is read: nothing when it does not say what the edits intend, as with a text that is not the
/// one that their source was read from. `moved` is told where values stand in the new text; what it was told
/// is void when nothing is returned.
[[nodiscard]] std::optional<EditedText> applyEdits(std::string_view text, jv::DocumentFormat format,
                                                   const Edits& edits, const PositionSink& moved = {});

} // namespace specloom::source_edit
