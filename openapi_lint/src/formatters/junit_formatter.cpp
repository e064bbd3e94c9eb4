#include "openapi_lint/formatters/junit_formatter.h"

#include "foundation/printable.h"
#include "openapi_lint/template_report.h"
#include "reporting/place.h"

#include <ostream> // std::ostream
#include <string>  // std::string

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

void describeJUnitIssue(jv::JV& issue, const LintResult& result) {
    const std::string message = printable(result.message);
    issue.setString("name", fmt::format("specloom.{}", result.ruleId));
    issue.setString("ruleId", result.ruleId);
    issue.setString("message", message);
    issue.setString("description",
                    fmt::format("line {}, col {}, {} - {}. ({})", reporting::printedLine(result.pos()),
                                reporting::printedColumn(result.pos()),
                                capitalizedSeverityName(result.severity), message, result.ruleId));
}

} // namespace

void JUnitFormatter::format(const LintContext& context) {
    const auto data = jv::JV::newObject();
    setFiles(*data, context, printable, describeJUnitIssue);
    stream() << renderReport("junit.jinja", *data);
}

} // namespace specloom::openapi_lint
