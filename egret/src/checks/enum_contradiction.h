#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `enum-contradiction`: a value of the enumeration that the pattern does not match.
void findEnumContradiction(const Subject& subject, Findings& findings);

} // namespace specloom::egret::checks
