#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `length-contradiction`: a pattern that no text of the given lengths matches.
void findLengthContradiction(const Subject& subject, Findings& findings);

} // namespace specloom::egret::checks
