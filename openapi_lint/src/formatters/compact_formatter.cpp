#include "openapi_lint/formatters/compact_formatter.h"

#include "openapi_lint/line_report.h"

#include <ostream> // std::ostream

namespace specloom::openapi_lint {

void CompactFormatter::format(const LintContext& context) {
    stream() << linesOf(context, "{0}: line {1}, col {2}, {4} - {6}. ({5})\n") << problemCount(context);
}

} // namespace specloom::openapi_lint
