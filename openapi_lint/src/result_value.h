#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view

#include "jv/jv.h"
#include "openapi_lint/lint_result.h"

namespace specloom::openapi_lint {

/// Appends a finding to an array as an object of "line", "column", "severity" ("error" or "warning"),
/// "ruleId" and "message", which `clean` makes fit for the report.
void appendResult(jv::JV& array, const LintResult& result, std::string (*clean)(std::string_view text));

} // namespace specloom::openapi_lint
