#include "openapi_lint/line_report.h"

#include "foundation/printable.h"
#include "reporting/place.h"

#include <iterator> // std::back_inserter

#include <fmt/format.h>

namespace specloom::openapi_lint {

std::string linesOf(const LintContext& context, std::string_view format) {
    std::string text;
    for (const auto& [filename, indices] : context.groupByFile()) {
        const std::string name = printableAtLineStart(filename);
        for (const std::size_t index : indices) {
            const LintResult& result = context.results[index];
            fmt::format_to(std::back_inserter(text), fmt::runtime(format), name,
                           reporting::printedLine(result.pos()), reporting::printedColumn(result.pos()),
                           severityName(result.severity), capitalizedSeverityName(result.severity),
                           result.ruleId, printable(result.message));
        }
    }
    return text;
}

std::string problemCount(const LintContext& context) {
    return fmt::format("\n{} problems\n", context.results.size());
}

} // namespace specloom::openapi_lint
