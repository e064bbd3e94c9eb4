#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `empty-alternative`: "(a|)", where an alternative is empty.
void findEmptyAlternative(const Subject& subject, Findings& findings);

} // namespace specloom::egret::checks
