#include "openapi_diff/formatters/html.h"

#include <ostream> // std::ostream
#include <string>  // std::string
#include <utility> // std::move

#include <nlohmann/json.hpp>

#include "foundation/escapes.h"
#include "foundation/printable.h"
#include "openapi_diff/formatters/template_report.h"
#include "openapi_diff/html_templates.h"
#include "templating/template_set.h"

namespace specloom::openapi_diff {
namespace {

std::string htmlText(std::string_view text) {
    return escapeHtml(printable(text));
}

void render(std::string_view name, std::string_view title, const Report& report, nlohmann::json data,
            std::ostream& stream) {
    static const templating::TemplateSet templates({htmlTemplates()});
    data["title"] = title;
    data["counts"] = describeCounts(report);
    data["level"] = describeLevel(report);
    stream << templates.render(name, data);
}

} // namespace

void HTMLStatusFormatter::format(const Report& report) {
    render("html_status.jinja", "Status report", report, nlohmann::json::object(), stream());
}

void HTMLChangelogFormatter::format(const Report& report) {
    // The title is that of the status report, which is meant: both say where a version stands.
    render("html_changelog.jinja", "Status report", report,
           describeChangelog(static_cast<const ChangelogReport&>(report), htmlText), stream());
}

void HTMLDetailsFormatter::format(const Report& report) {
    nlohmann::json changes = nlohmann::json::array();
    for (const Change& change : static_cast<const DetailedReport&>(report).changes())
        changes.push_back(describeChange(change, htmlText));
    render("html_details.jinja", "Detailed report", report, {{"changes", std::move(changes)}}, stream());
}

} // namespace specloom::openapi_diff
