#include "openapi_lint/formatters/stylish_formatter.h"

#include <algorithm> // std::max, std::min
#include <iterator>  // std::back_inserter
#include <ostream>   // std::ostream
#include <string>    // std::string
#include <vector>    // std::vector

#include <fmt/format.h>

#include "foundation/printable.h"
#include "foundation/unreachable.h"
#include "foundation/utf8.h"
#include "openapi_lint/lint_context.h"

namespace specloom::openapi_lint {
namespace {

/// The texts of one line, or the width of each.
template <typename T>
struct Columns {
    T line{};
    T column{};
    T severity{};
    T message{};
    T ruleId{};
};
using Row = Columns<std::string>;
using Widths = Columns<std::size_t>;

std::string severityText(Severity severity) {
    if (severity != Severity::Error && severity != Severity::Warning)
        unreachable(nullptr, "openapi_lint/src/formatters/stylish", __LINE__);
    return std::string(severityName(severity));
}

Row rowOf(const LintResult& result) {
    return {.line = std::to_string(result.printedLine()),
            .column = std::to_string(result.printedColumn()),
            .severity = severityText(result.severity),
            .message = printable(result.message),
            .ruleId = std::string(result.ruleId)};
}

/// One message of a thousand pages would make as much of each line.
constexpr std::size_t widestMessage = 200; // columns

Widths widthsOf(const std::vector<Row>& rows) {
    Widths widths;
    for (const Row& row : rows) {
        widths.line = std::max(widths.line, columnsOf(row.line));
        widths.column = std::max(widths.column, columnsOf(row.column));
        widths.severity = std::max(widths.severity, columnsOf(row.severity));
        widths.message = std::max(widths.message, columnsOf(row.message));
        widths.ruleId = std::max(widths.ruleId, columnsOf(row.ruleId));
    }
    widths.message = std::min(widths.message, widestMessage);
    return widths;
}

// By hand, because fmt counts bytes or cells of a terminal, and refuses what is no UTF-8.
void appendPadded(std::string& text, std::string_view value, std::size_t width) {
    text.append(value).append(width - std::min(width, columnsOf(value)), ' ');
}

void appendFile(std::string& text, std::string_view name, const std::vector<Row>& rows) {
    const Widths widths = widthsOf(rows);
    text.append(printableAtLineStart(name)) += '\n';
    for (const Row& row : rows) {
        text.append(2 + widths.line - columnsOf(row.line), ' ').append(row.line) += ':';
        appendPadded(text, row.column, widths.column);
        appendPadded(text.append("  "), row.severity, widths.severity);
        appendPadded(text.append("  "), row.message, widths.message);
        appendPadded(text.append("  "), row.ruleId, widths.ruleId);
        text += '\n';
    }
}

void appendSummary(std::string& text, const LintContext& context) {
    fmt::format_to(std::back_inserter(text), "\n  {} issues ({} errors, {} warnings)\n",
                   context.results.size(), context.errorCount, context.warningCount);
    if (context.fixableErrorCount + context.fixableWarningCount > 0)
        fmt::format_to(std::back_inserter(text), "  {} errors, {} warnings are potentially auto-fixable\n",
                       context.fixableErrorCount, context.fixableWarningCount);
}

} // namespace

void StylishFormatter::format(const LintContext& context) {
    std::string text;
    for (const auto& [filename, indices] : context.groupByFile()) {
        std::vector<Row> rows;
        rows.reserve(indices.size());
        for (const std::size_t index : indices)
            rows.push_back(rowOf(context.results[index]));
        appendFile(text, filename, rows);
    }
    if (!context.results.empty())
        appendSummary(text, context);
    stream() << text;
}

} // namespace specloom::openapi_lint
