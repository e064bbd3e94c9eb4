#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `class-alternation`: "[a|b]", where the bar is a character like the others.
void findClassAlternation(const Subject& subject, Findings& findings);

/// Whether it finds the class.
[[nodiscard]] bool isClassAlternation(const Subject& subject, const regex::Spelling::Class& members);

} // namespace specloom::egret::checks
