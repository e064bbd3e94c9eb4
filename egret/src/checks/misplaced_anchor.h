#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `misplaced-anchor`: "a^b", an anchor that cannot hold where it stands.
void findMisplacedAnchor(const Subject& subject, Findings& findings);

/// Whether it finds something.
[[nodiscard]] bool hasMisplacedAnchor(const Subject& subject);

/// Whether the pattern has one character at most and can only be there to match nothing: ".^".
[[nodiscard]] bool isMeantToMatchNothing(const regex::SyntaxTree& tree);

} // namespace specloom::egret::checks
