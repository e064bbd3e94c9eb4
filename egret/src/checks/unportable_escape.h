#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `unportable-escape`: "\@", which engines refuse that keep to flag "u" of ECMA-262.
void findUnportableEscape(const Subject& subject, Findings& findings);

} // namespace specloom::egret::checks
