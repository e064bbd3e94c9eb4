#include "openapi_diff/formatters/markdown.h"

#include "openapi_diff/formatters/template_report.h"
#include "openapi_diff/markdown_templates.h"
#include "reporting/escapes.h"
#include "templating/template_set.h"

#include <ostream> // std::ostream
#include <string>  // std::string

namespace specloom::openapi_diff {
namespace {

std::string render(std::string_view name, const jv::JV& data) {
    static const templating::TemplateSet templates({markdownTemplates()});
    return templates.render(name, data);
}

std::string renderChanges(const DetailedReport& report, ChangeLevel level) {
    const auto data = jv::JV::newObject();
    data->setString("heading", changeLevelHeading(level));
    setChanges(*data, report, reporting::markdownText, level);
    return render("markdown_details.jinja", *data);
}

std::string renderNoChanges() {
    const auto data = jv::JV::newObject();
    data->setString("heading", changeLevelHeading(ChangeLevel::None));
    data->setArray("changes");
    return render("markdown_details.jinja", *data);
}

} // namespace

void MarkdownStatusFormatter::write(const StatusReport& report) {
    const auto data = jv::JV::newObject();
    setLevel(*data, report);
    setCounts(*data, report);
    stream() << render("markdown_status.jinja", *data);
}

void MarkdownChangelogFormatter::write(const ChangelogReport& report) {
    const auto data = jv::JV::newObject();
    setChangelog(*data, report, reporting::markdownText);
    stream() << render("markdown_changelog.jinja", *data);
}

void MarkdownDetailsFormatter::write(const DetailedReport& report) {
    // One level at a time, because what templates take is many times larger than changes are.
    for (const ChangeLevel level :
         {ChangeLevel::Breaking, ChangeLevel::NonBreaking, ChangeLevel::NonFunctional})
        if (report.count(level) > 0)
            stream() << renderChanges(report, level);
    if (report.level() == ChangeLevel::None)
        stream() << renderNoChanges();
}

} // namespace specloom::openapi_diff
