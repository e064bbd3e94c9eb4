#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `unescaped-dot`: "example.com", ".jpg$", where the dot takes any character.
void findUnescapedDot(const Subject& subject, Findings& findings);

} // namespace specloom::egret::checks
