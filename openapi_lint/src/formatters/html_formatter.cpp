#include "openapi_lint/formatters/html_formatter.h"

#include "foundation/site.h"
#include "openapi_lint/template_report.h"
#include "reporting/escapes.h"
#include "reporting/place.h"

#include <ostream> // std::ostream

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

/// The address of the page on a rule.
std::string ruleDocUrl(std::string_view ruleId) {
    return fmt::format("{}/linter/rules/{}", documentationSite, ruleId);
}

void describeHtmlIssue(jv::JV& issue, const LintResult& result) {
    issue.setString("pos", reporting::printedPos(result.pos()));
    issue.setString("severity", severityName(result.severity));
    issue.setString("message", reporting::htmlText(result.message));
    issue.setString("ruleId", reporting::htmlText(result.ruleId));
    issue.setString("ruleDocUrl", reporting::htmlText(ruleDocUrl(result.ruleId)));
}

void setCounts(jv::JV& data, const LintContext& context) {
    jv::JV* counts = data.setObject("counts");
    counts->setInteger("total", static_cast<std::int64_t>(context.results.size()));
    counts->setInteger("errors", static_cast<std::int64_t>(context.errorCount));
    counts->setInteger("warnings", static_cast<std::int64_t>(context.warningCount));
}

} // namespace

void HTMLFormatter::format(const LintContext& context) {
    const auto data = jv::JV::newObject();
    data->setString("title", "Linter report");
    setCounts(*data, context);
    setFiles(*data, context, reporting::htmlText, describeHtmlIssue);
    stream() << renderReport("html_findings.jinja", *data);
}

} // namespace specloom::openapi_lint
