#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `anchor-precedence`: "^a|b$", where each anchor belongs to one alternative only.
void findAnchorPrecedence(const Subject& subject, Findings& findings);

} // namespace specloom::egret::checks
