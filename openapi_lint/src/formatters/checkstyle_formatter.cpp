#include "openapi_lint/formatters/checkstyle_formatter.h"

#include <ostream> // std::ostream

#include <nlohmann/json.hpp>

#include "foundation/printable.h"
#include "openapi_lint/template_report.h"

namespace specloom::openapi_lint {
namespace {

nlohmann::json describeCheckstyleFile(std::string_view name, std::size_t /*count*/) {
    return {{"path", printable(name)}};
}

nlohmann::json describeCheckstyleIssue(const LintResult& result) {
    return {{"line", result.printedLine()},
            {"severity", severityName(result.severity)},
            {"message", printable(result.message)},
            {"ruleId", result.ruleId}};
}

} // namespace

void CheckstyleFormatter::format(const LintContext& context) {
    stream() << renderReport("checkstyle.jinja", {{"files", describeFiles(context, describeCheckstyleFile,
                                                                          describeCheckstyleIssue)}});
}

} // namespace specloom::openapi_lint
