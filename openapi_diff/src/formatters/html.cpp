#include "openapi_diff/formatters/html.h"

#include "openapi_diff/formatters/template_report.h"
#include "openapi_diff/html_templates.h"
#include "reporting/escapes.h"
#include "templating/template_set.h"

#include <ostream> // std::ostream
#include <utility> // std::move

#include <nlohmann/json.hpp>

namespace specloom::openapi_diff {
namespace {

void render(std::string_view name, std::string_view title, const Report& report, nlohmann::json data,
            std::ostream& stream) {
    static const templating::TemplateSet templates({htmlTemplates()});
    data["title"] = title;
    data["counts"] = describeCounts(report);
    data["level"] = describeLevel(report);
    stream << templates.render(name, data);
}

} // namespace

void HTMLStatusFormatter::write(const StatusReport& report) {
    render("html_status.jinja", "Status report", report, nlohmann::json::object(), stream());
}

void HTMLChangelogFormatter::write(const ChangelogReport& report) {
    // The title is that of the status report, which is meant: both say where a version stands.
    render("html_changelog.jinja", "Status report", report, changelogData(report, reporting::htmlText),
           stream());
}

void HTMLDetailsFormatter::write(const DetailedReport& report) {
    nlohmann::json changes = nlohmann::json::array();
    for (const Change& change : report.changes())
        changes.push_back(describeChange(change, reporting::htmlText));
    render("html_details.jinja", "Detailed report", report, {{"changes", std::move(changes)}}, stream());
}

} // namespace specloom::openapi_diff
