#pragma once

#include "source_edit/edits.h"
#include "source_edit/layout.h"
#include "source_edit/rendering.h"
#include "source_edit/replacements.h"

#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::source_edit {

/// What is known of the text that a container stands in.
struct TextAround {
    std::string_view text;
    jv::DocumentFormat format;
    std::string lineEnd; ///< the first of the text
};

/// Brings the edits of one container into its text. What is to happen inside of its children must be in
/// `replacements` already. False when the text cannot take them; what came into `replacements` then is for
/// renderContainer() to put away.
[[nodiscard]] bool editContainer(const TextAround& around, const Edits& edits,
                                 const EditedContainer& container, const Layout& layout,
                                 Replacements& replacements);

/// In the place of the container's text comes what the writer of the format makes of its values.
void renderContainer(const TextAround& around, const Edits& edits, const EditedContainer& container,
                     const Layout& layout, Replacements& replacements);

} // namespace specloom::source_edit
