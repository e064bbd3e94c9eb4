#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `exponential-repeat`: "(a+)+$", a repeat whose rounds read one text in many ways, so that engines that go
/// back try exponentially many before they give up.
void findExponentialRepeat(const Subject& subject, Findings& findings);

} // namespace specloom::egret::checks
