#include "openapi_lint/formatters/junit_formatter.h"

#include <ostream> // std::ostream
#include <string>  // std::string

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "foundation/printable.h"
#include "openapi_lint/template_report.h"

namespace specloom::openapi_lint {
namespace {

// Every test case fails, because what passes is no finding: the two counts are always the same.
nlohmann::json describeJUnitFile(std::string_view name, std::size_t count) {
    return {{"name", printable(name)}, {"totalCount", count}, {"issueCount", count}};
}

nlohmann::json describeJUnitIssue(const LintResult& result) {
    const std::string message = printable(result.message);
    return {{"name", fmt::format("specloom.{}", result.ruleId)},
            {"ruleId", result.ruleId},
            {"message", message},
            {"description",
             fmt::format("line {}, col {}, {} - {}. ({})", result.printedLine(), result.printedColumn(),
                         capitalizedSeverityName(result.severity), message, result.ruleId)}};
}

} // namespace

void JUnitFormatter::format(const LintContext& context) {
    stream() << renderReport("junit.jinja",
                             {{"files", describeFiles(context, describeJUnitFile, describeJUnitIssue)}});
}

} // namespace specloom::openapi_lint
