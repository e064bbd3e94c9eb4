#pragma once

#include "jv/jv.h"
#include "openapi_lint/lint_result.h"

namespace specloom::openapi_lint {

/// Appends a finding to an array as an object of "line", "column", "severity" ("error" or "warning"),
/// "ruleId" and "message". What is no UTF-8 in the message becomes U+FFFD.
void appendResult(jv::JV& array, const LintResult& result);

} // namespace specloom::openapi_lint
