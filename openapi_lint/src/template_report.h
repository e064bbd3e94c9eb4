#pragma once

#include "openapi_lint/lint_context.h"

#include <functional>  // std::function
#include <string>      // std::string
#include <string_view> // std::string_view

#include <nlohmann/json_fwd.hpp>

// What the reports that are made from a template have in common.
namespace specloom::openapi_lint {

/// "files" of a template: what `describeFile` makes of each file that has results, with what `describeIssue`
/// makes of each of its results under "issues".
[[nodiscard]] nlohmann::json
describeFiles(const LintContext& context,
              const std::function<nlohmann::json(std::string_view name, std::size_t count)>& describeFile,
              const std::function<nlohmann::json(const LintResult& result)>& describeIssue);

/// The text of the carried template of that name, filled with `data`. What is no UTF-8 must have been
/// replaced in the data, or the report has it, too.
[[nodiscard]] std::string renderReport(std::string_view templateName, const nlohmann::json& data);

} // namespace specloom::openapi_lint
