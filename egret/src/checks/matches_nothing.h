#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `matches-nothing`: "^[]$", which no text matches.
void findMatchesNothing(const Subject& subject, Findings& findings);

} // namespace specloom::egret::checks
