#pragma once

#include "jv/jv.h"
#include "openapi_lint/lint_result.h"
#include "reporting/escapes.h"

namespace specloom::openapi_lint {

/// Appends a finding to an array as an object of "line", "column", "severity" ("error" or "warning"),
/// "ruleId" and "message", which `escape` makes fit for the report.
void appendResult(jv::JV& array, const LintResult& result, reporting::EscapeText escape);

} // namespace specloom::openapi_lint
