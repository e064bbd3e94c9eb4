#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `matches-everything`: "[a-z]*", which every text matches.
void findMatchesEverything(const Subject& subject, Findings& findings);

/// Whether every text matches, though the pattern names characters.
[[nodiscard]] bool isWithoutEffect(const Subject& subject);

} // namespace specloom::egret::checks
