#pragma once

#include "source_edit/replacements.h"

#include <span>        // std::span
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::source_edit {

/// The difference of two texts in the unified format that patch(1) takes, by lines, with three lines around
/// each change; empty when there is none. `path` names both texts. `changes` are the places that differ, in
/// their order; all else is the same.
///
/// Lines end at line feeds, and stand as they are: what a carriage return or an escape sequence of the texts
/// does at a terminal is not prevented, or the outcome would be no patch.
[[nodiscard]] std::string unifiedDiff(std::string_view path, std::string_view before, std::string_view after,
                                      std::span<const Change> changes);

} // namespace specloom::source_edit
