#include "openapi_lint/formatters/html_formatter.h"

#include <ostream> // std::ostream

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "foundation/escapes.h"
#include "foundation/printable.h"
#include "foundation/site.h"
#include "openapi_lint/template_report.h"

namespace specloom::openapi_lint {
namespace {

/// The address of the page on a rule.
std::string ruleDocUrl(std::string_view ruleId) {
    return fmt::format("{}/linter/rules/{}", documentationSite, ruleId);
}

std::string htmlText(std::string_view text) {
    return escapeHtml(printable(text));
}

nlohmann::json describeHtmlFile(std::string_view name, std::size_t /*count*/) {
    return {{"path", htmlText(name)}};
}

nlohmann::json describeHtmlIssue(const LintResult& result) {
    return {{"pos", fmt::format("{}:{}", result.printedLine(), result.printedColumn())},
            {"severity", severityName(result.severity)},
            {"message", htmlText(result.message)},
            {"ruleId", htmlText(result.ruleId)},
            {"ruleDocUrl", htmlText(ruleDocUrl(result.ruleId))}};
}

} // namespace

void HTMLFormatter::format(const LintContext& context) {
    stream() << renderReport("html_findings.jinja",
                             {{"title", "Linter report"},
                              {"counts",
                               {{"total", context.results.size()},
                                {"errors", context.errorCount},
                                {"warnings", context.warningCount}}},
                              {"files", describeFiles(context, describeHtmlFile, describeHtmlIssue)}});
}

} // namespace specloom::openapi_lint
