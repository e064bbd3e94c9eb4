#include "openapi_lint/formatters/visualstudio_formatter.h"

#include "openapi_lint/line_report.h"

#include <ostream> // std::ostream

namespace specloom::openapi_lint {

void VisualStudioFormatter::format(const LintContext& context) {
    stream() << linesOf(context, "{0}({1},{2}): {3} {5} : {6}.\n");
}

} // namespace specloom::openapi_lint
