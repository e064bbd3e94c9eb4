#include "openapi_lint/formatters/checkstyle_formatter.h"

#include "foundation/printable.h"
#include "openapi_lint/template_report.h"
#include "reporting/place.h"

#include <ostream> // std::ostream

#include <nlohmann/json.hpp>

namespace specloom::openapi_lint {
namespace {

nlohmann::json describeCheckstyleIssue(const LintResult& result) {
    return {{"line", reporting::printedLine(result.pos())},
            {"severity", severityName(result.severity)},
            {"message", printable(result.message)},
            {"ruleId", result.ruleId}};
}

} // namespace

void CheckstyleFormatter::format(const LintContext& context) {
    stream() << renderReport("checkstyle.jinja",
                             {{"files", describeFiles(context, printable, describeCheckstyleIssue)}});
}

} // namespace specloom::openapi_lint
