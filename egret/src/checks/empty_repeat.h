#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `empty-repeat`: "(a*)*", a repeat of what may be empty, and "a{0}".
void findEmptyRepeat(const Subject& subject, Findings& findings);

} // namespace specloom::egret::checks
