#pragma once

#include "jv/jv.h"
#include "openapi_lint/lint_context.h"
#include "reporting/escapes.h"

#include <string>      // std::string
#include <string_view> // std::string_view

// What the reports that are made from a template have in common.
namespace specloom::openapi_lint {

/// Sets "files" of a template's data: each file that has results, with its "path" or "name", which `escape`
/// makes fit for the template, the number of its results as "totalCount" and "issueCount", and under "issues"
/// an object for each, which `describeIssue` fills.
void setFiles(jv::JV& data, const LintContext& context, reporting::EscapeText escape,
              void (*describeIssue)(jv::JV& issue, const LintResult& result));

/// The text of the embedded template of that name, filled with `data`. What is no UTF-8 must have been
/// replaced in the data, or the report has it, too.
[[nodiscard]] std::string renderReport(std::string_view templateName, const jv::JV& data);

} // namespace specloom::openapi_lint
