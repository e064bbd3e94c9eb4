#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `shadowed-alternative`: "foo|foo", ".*|x", an alternative that changes nothing.
void findShadowedAlternative(const Subject& subject, Findings& findings);

} // namespace specloom::egret::checks
