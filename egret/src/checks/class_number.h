#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `class-number`: "[1-12]", which is no range of numbers.
void findClassNumber(const Subject& subject, Findings& findings);

/// Whether it finds the class.
[[nodiscard]] bool hasNumbers(const regex::Spelling::Class& members);

} // namespace specloom::egret::checks
