#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `format-contradiction`: a pattern that no text of the format matches.
void findFormatContradiction(const Subject& subject, Findings& findings);

} // namespace specloom::egret::checks
