#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `missing-anchor`: "[a-z]{2,5}" and "^[a-z]+", patterns for a whole text that take a part of it.
void findMissingAnchor(const Subject& subject, Findings& findings);

} // namespace specloom::egret::checks
