#include "openapi_lint/formatters/unix_formatter.h"

#include "openapi_lint/line_report.h"

#include <ostream> // std::ostream

namespace specloom::openapi_lint {

void UnixFormatter::format(const LintContext& context) {
    stream() << linesOf(context, "{0}:{1}:{2}: {6}. [{4}/{5}]\n") << problemCount(context);
}

} // namespace specloom::openapi_lint
