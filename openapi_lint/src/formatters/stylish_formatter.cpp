#include "openapi_lint/formatters/stylish_formatter.h"

#include <ostream> // std::ostream

#include "openapi_lint/lint_context.h"

namespace specloom::openapi_lint {

// The columns and the summary are still to come.
void StylishFormatter::format(const LintContext& context) {
    for (const auto& [filename, indices] : context.groupByFile()) {
        stream() << filename << '\n';
        for (const std::size_t index : indices) {
            const LintResult& result = context.results[index];
            stream() << "  " << result.printedLine() << ':' << result.printedColumn() << "  "
                     << severityName(result.severity) << "  " << result.message << "  " << result.ruleId
                     << '\n';
        }
    }
}

} // namespace specloom::openapi_lint
