#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `doubled-backslash`: "\\d+", a backslash and letters where an escape was meant.
void findDoubledBackslash(const Subject& subject, Findings& findings);

} // namespace specloom::egret::checks
