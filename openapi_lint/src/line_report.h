#pragma once

#include "openapi_lint/lint_context.h"

#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_lint {

/// A line for each result, in which {0} of `format` is the file, {1} the line, {2} the column, {3} the
/// severity
/// ("error"), {4} the same with a capital ("Error"), {5} the rule's id and {6} the message.
[[nodiscard]] std::string linesOf(const LintContext& context, std::string_view format);

/// What ends a report of lines: a blank line and how many there are.
[[nodiscard]] std::string problemCount(const LintContext& context);

} // namespace specloom::openapi_lint
