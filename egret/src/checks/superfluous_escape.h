#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `superfluous-escape`: "[\.]", where the character stands for itself anyway.
void findSuperfluousEscape(const Subject& subject, Findings& findings);

} // namespace specloom::egret::checks
