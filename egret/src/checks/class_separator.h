#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `class-separator`: "[a-z,A-Z]", where the comma is a character like the others.
void findClassSeparator(const Subject& subject, Findings& findings);

/// Whether it finds the class.
[[nodiscard]] bool hasSeparators(const Subject& subject, const regex::Spelling::Class& members);

} // namespace specloom::egret::checks
