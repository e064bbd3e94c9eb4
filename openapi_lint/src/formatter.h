#pragma once

#include "reporting/formatter.h"

namespace specloom::openapi_lint {

class LintContext;

/// A form of report on all results of a context. Each has a file pair below formatters/ and a line in the
/// table of formatter_registry.cpp.
using Formatter = reporting::Formatter<LintContext>;

} // namespace specloom::openapi_lint
