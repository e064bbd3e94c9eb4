#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `posix-class`: "[[:alpha:]]", which ECMA-262 does not have.
void findPosixClass(const Subject& subject, Findings& findings);

/// Whether it finds the class.
[[nodiscard]] bool isPosixClass(const Subject& subject, const regex::Spelling::Class& members);

} // namespace specloom::egret::checks
