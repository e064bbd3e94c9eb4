#include "openapi_lint/formatters/junit_formatter.h"

#include "foundation/printable.h"
#include "openapi_lint/template_report.h"
#include "reporting/place.h"

#include <ostream> // std::ostream
#include <string>  // std::string

#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace specloom::openapi_lint {
namespace {

nlohmann::json describeJUnitIssue(const LintResult& result) {
    const std::string message = printable(result.message);
    return {
        {"name", fmt::format("specloom.{}", result.ruleId)},
        {"ruleId", result.ruleId},
        {"message", message},
        {"description", fmt::format("line {}, col {}, {} - {}. ({})", reporting::printedLine(result.pos()),
                                    reporting::printedColumn(result.pos()),
                                    capitalizedSeverityName(result.severity), message, result.ruleId)}};
}

} // namespace

void JUnitFormatter::format(const LintContext& context) {
    stream() << renderReport("junit.jinja",
                             {{"files", describeFiles(context, printable, describeJUnitIssue)}});
}

} // namespace specloom::openapi_lint
