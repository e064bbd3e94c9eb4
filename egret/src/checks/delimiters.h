#pragma once

#include "egret/checks/subject.h"

namespace specloom::egret::checks {

/// `delimiters`: "/^a$/i", where slashes and flags are part of the pattern.
void findDelimiters(const Subject& subject, Findings& findings);

/// Whether it finds something.
[[nodiscard]] bool hasDelimiters(std::string_view source);

} // namespace specloom::egret::checks
