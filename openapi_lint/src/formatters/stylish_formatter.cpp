#include "openapi_lint/formatters/stylish_formatter.h"

#include "foundation/printable.h"
#include "foundation/unreachable.h"
#include "openapi_lint/lint_context.h"
#include "reporting/place.h"
#include "reporting/table.h"

#include <ostream> // std::ostream
#include <string>  // std::string, std::to_string

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

using reporting::Align;

/// One message of a thousand pages would make as much of each line.
constexpr std::size_t widestMessage = 200; // columns

std::string_view severityText(Severity severity) {
    if (severity != Severity::Error && severity != Severity::Warning)
        // The place is part of a published text, which outlives the files that it names.
        unreachable(nullptr, "openapi_lint/src/formatters/stylish", __LINE__);
    return severityName(severity);
}

reporting::Table tableOf(const LintContext& context, const std::vector<std::size_t>& indices) {
    reporting::Table table({{.before = "  ", .align = Align::Right}, // line
                            {.before = ":"},                         // column
                            {.before = "  "},                        // severity
                            {.before = "  ", .widest = widestMessage},
                            {.before = "  "}}); // rule
    for (const std::size_t index : indices) {
        const LintResult& result = context.results[index];
        table.addRow({std::to_string(reporting::printedLine(result.pos())),
                      std::to_string(reporting::printedColumn(result.pos())), severityText(result.severity),
                      printable(result.message), result.ruleId});
    }
    return table;
}

std::string summaryOf(const LintContext& context) {
    std::string text = fmt::format("\n  {} issues ({} errors, {} warnings)\n", context.results.size(),
                                   context.errorCount, context.warningCount);
    if (context.fixableErrorCount + context.fixableWarningCount > 0)
        text += fmt::format("  {} errors, {} warnings are potentially auto-fixable\n",
                            context.fixableErrorCount, context.fixableWarningCount);
    return text;
}

} // namespace

void StylishFormatter::format(const LintContext& context) {
    for (const auto& [filename, indices] : context.groupByFile()) {
        stream() << printableAtLineStart(filename) << '\n';
        tableOf(context, indices).write(stream());
    }
    if (!context.results.empty())
        stream() << summaryOf(context);
}

} // namespace specloom::openapi_lint
