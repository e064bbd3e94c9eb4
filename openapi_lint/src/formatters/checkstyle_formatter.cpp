#include "openapi_lint/formatters/checkstyle_formatter.h"

#include "foundation/printable.h"
#include "openapi_lint/template_report.h"
#include "reporting/place.h"

#include <ostream> // std::ostream

namespace specloom::openapi_lint {
namespace {

void describeCheckstyleIssue(jv::JV& issue, const LintResult& result) {
    issue.setInteger("line", reporting::printedLine(result.pos()));
    issue.setString("severity", severityName(result.severity));
    issue.setString("message", printable(result.message));
    issue.setString("ruleId", result.ruleId);
}

} // namespace

void CheckstyleFormatter::format(const LintContext& context) {
    const auto data = jv::JV::newObject();
    setFiles(*data, context, printable, describeCheckstyleIssue);
    stream() << renderReport("checkstyle.jinja", *data);
}

} // namespace specloom::openapi_lint
