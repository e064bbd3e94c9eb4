#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `class-range`: "[A-z]" and "[+-.]", ranges between characters of different kinds.
void findClassRange(const Subject& subject, Findings& findings);

} // namespace specloom::egret::checks
