#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `class-overlap`: "[a-z0-9a]", entries of a class that have characters in common.
void findClassOverlap(const Subject& subject, Findings& findings);

} // namespace specloom::egret::checks
