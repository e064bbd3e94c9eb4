#include "openapi_lint/formatters/compact_formatter.h"

#include <iterator> // std::back_inserter
#include <ostream>  // std::ostream
#include <string>   // std::string

#include <fmt/format.h>

#include "foundation/printable.h"
#include "openapi_lint/lint_context.h"

namespace specloom::openapi_lint {

void CompactFormatter::format(const LintContext& context) {
    std::string text;
    for (const auto& [filename, indices] : context.groupByFile()) {
        const std::string name = printableAtLineStart(filename);
        for (const std::size_t index : indices) {
            const LintResult& result = context.results[index];
            fmt::format_to(std::back_inserter(text), "{}: line {}, col {}, {} - {}. ({})\n", name,
                           result.printedLine(), result.printedColumn(),
                           capitalizedSeverityName(result.severity), printable(result.message),
                           result.ruleId);
        }
    }
    fmt::format_to(std::back_inserter(text), "\n{} problems\n", context.results.size());
    stream() << text;
}

} // namespace specloom::openapi_lint
