#pragma once

#include "openapi_lint/lint_context.h"
#include "reporting/escapes.h"

#include <string>      // std::string
#include <string_view> // std::string_view

#include <nlohmann/json_fwd.hpp>

// What the reports that are made from a template have in common.
namespace specloom::openapi_lint {

/// "files" of a template: each file that has results, with its "path" or "name", which `escape` makes fit for
/// the template, the number of its results as "totalCount" and "issueCount", and under "issues" what
/// `describeIssue` makes of each.
[[nodiscard]] nlohmann::json describeFiles(const LintContext& context, reporting::EscapeText escape,
                                           nlohmann::json (*describeIssue)(const LintResult& result));

/// The text of the embedded template of that name, filled with `data`. What is no UTF-8 must have been
/// replaced in the data, or the report has it, too.
[[nodiscard]] std::string renderReport(std::string_view templateName, const nlohmann::json& data);

} // namespace specloom::openapi_lint
