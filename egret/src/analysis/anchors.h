#pragma once

#include "regex/syntax.h"

#include <optional> // std::optional

// Where a pattern is anchored, as far as that can be seen at its ends.
namespace specloom::egret::checks {

enum class Side { Start, End };

/// Whether an anchor, a word boundary, or a lookaround that looks out of the match may stand first, or last.
[[nodiscard]] bool isAnchored(const regex::Node& node, Side side);

/// Whether the anchor itself stands first, or last, for certain: "^" or "$".
[[nodiscard]] bool hasAnchor(const regex::Node& node, Side side);

/// The alternatives of a pattern that is an alternation, perhaps in parentheses, of which "^" and "$" seem to
/// be meant for all, and hold for the first and the last one alone: "^a|b$".
struct SplitAnchors {
    bool start; ///< "^" is there
    bool end;   ///< "$" is there
};
[[nodiscard]] std::optional<SplitAnchors> splitAnchors(const regex::Node& root);

} // namespace specloom::egret::checks
