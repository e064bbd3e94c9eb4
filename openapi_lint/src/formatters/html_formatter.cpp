#include "openapi_lint/formatters/html_formatter.h"

#include "foundation/site.h"
#include "openapi_lint/template_report.h"
#include "reporting/escapes.h"
#include "reporting/place.h"

#include <ostream> // std::ostream

#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace specloom::openapi_lint {
namespace {

/// The address of the page on a rule.
std::string ruleDocUrl(std::string_view ruleId) {
    return fmt::format("{}/linter/rules/{}", documentationSite, ruleId);
}

nlohmann::json describeHtmlIssue(const LintResult& result) {
    return {{"pos", reporting::printedPos(result.pos())},
            {"severity", severityName(result.severity)},
            {"message", reporting::htmlText(result.message)},
            {"ruleId", reporting::htmlText(result.ruleId)},
            {"ruleDocUrl", reporting::htmlText(ruleDocUrl(result.ruleId))}};
}

} // namespace

void HTMLFormatter::format(const LintContext& context) {
    stream() << renderReport("html_findings.jinja",
                             {{"title", "Linter report"},
                              {"counts",
                               {{"total", context.results.size()},
                                {"errors", context.errorCount},
                                {"warnings", context.warningCount}}},
                              {"files", describeFiles(context, reporting::htmlText, describeHtmlIssue)}});
}

} // namespace specloom::openapi_lint
