#include "openapi_diff/formatters/markdown.h"

#include "openapi_diff/formatters/template_report.h"
#include "openapi_diff/markdown_templates.h"
#include "reporting/escapes.h"
#include "templating/template_set.h"

#include <ostream> // std::ostream
#include <string>  // std::string

#include <nlohmann/json.hpp>

namespace specloom::openapi_diff {
namespace {

std::string render(std::string_view name, const nlohmann::json& data) {
    static const templating::TemplateSet templates({markdownTemplates()});
    return templates.render(name, data);
}

/// The changes of one level.
nlohmann::json describeChanges(const DetailedReport& report, ChangeLevel level) {
    nlohmann::json changes = nlohmann::json::array();
    for (const Change& change : report.changes())
        if (change.level == level)
            changes.push_back(describeChange(change, reporting::markdownText));
    return changes;
}

} // namespace

void MarkdownStatusFormatter::write(const StatusReport& report) {
    stream() << render("markdown_status.jinja",
                       {{"level", describeLevel(report)}, {"counts", describeCounts(report)}});
}

void MarkdownChangelogFormatter::write(const ChangelogReport& report) {
    stream() << render("markdown_changelog.jinja", changelogData(report, reporting::markdownText));
}

void MarkdownDetailsFormatter::write(const DetailedReport& report) {
    // One level at a time, because what templates take is many times larger than changes are.
    for (const ChangeLevel level :
         {ChangeLevel::Breaking, ChangeLevel::NonBreaking, ChangeLevel::NonFunctional})
        if (report.count(level) > 0)
            stream() << render("markdown_details.jinja", {{"heading", changeLevelHeading(level)},
                                                          {"changes", describeChanges(report, level)}});
    if (report.level() == ChangeLevel::None)
        stream() << render("markdown_details.jinja", {{"heading", changeLevelHeading(ChangeLevel::None)},
                                                      {"changes", nlohmann::json::array()}});
}

} // namespace specloom::openapi_diff
