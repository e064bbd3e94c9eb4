#include "openapi_diff/formatters/html.h"

#include "openapi_diff/formatters/template_report.h"
#include "openapi_diff/html_templates.h"
#include "reporting/escapes.h"
#include "templating/template_set.h"

#include <ostream> // std::ostream

namespace specloom::openapi_diff {
namespace {

/// Of a report whose own data are set already.
std::string render(std::string_view name, std::string_view title, const Report& report, jv::JV& data) {
    static const templating::TemplateSet templates({htmlTemplates()});
    data.setString("title", title);
    setCounts(data, report);
    setLevel(data, report);
    return templates.render(name, data);
}

} // namespace

void HTMLStatusFormatter::write(const StatusReport& report) {
    const auto data = jv::JV::newObject();
    stream() << render("html_status.jinja", "Status report", report, *data);
}

void HTMLChangelogFormatter::write(const ChangelogReport& report) {
    // The title is that of the status report, which is meant: both say where a version stands.
    const auto data = jv::JV::newObject();
    setChangelog(*data, report, reporting::htmlText);
    stream() << render("html_changelog.jinja", "Status report", report, *data);
}

void HTMLDetailsFormatter::write(const DetailedReport& report) {
    const auto data = jv::JV::newObject();
    setChanges(*data, report, reporting::htmlText);
    stream() << render("html_details.jinja", "Detailed report", report, *data);
}

} // namespace specloom::openapi_diff
