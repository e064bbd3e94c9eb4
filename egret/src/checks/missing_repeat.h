#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `missing-repeat`: "^[a-z]$" beside "maxLength: 20".
void findMissingRepeat(const Subject& subject, Findings& findings);

} // namespace specloom::egret::checks
