#include "openapi_diff/formatters/markdown.h"

#include <ostream> // std::ostream
#include <string>  // std::string

#include <nlohmann/json.hpp>

#include "foundation/escapes.h"
#include "foundation/printable.h"
#include "openapi_diff/formatters/template_report.h"
#include "openapi_diff/markdown_templates.h"
#include "templating/template_set.h"

namespace specloom::openapi_diff {
namespace {

/// Text of a document as one line that Markdown shows as it is.
std::string markdownText(std::string_view text) {
    return escapeMarkdown(printable(text));
}

std::string render(std::string_view name, const nlohmann::json& data) {
    static const templating::TemplateSet templates({markdownTemplates()});
    return templates.render(name, data);
}

/// The changes of one level.
nlohmann::json describeChanges(const DetailedReport& report, ChangeLevel level) {
    nlohmann::json changes = nlohmann::json::array();
    for (const Change& change : report.changes())
        if (change.level == level)
            changes.push_back(describeChange(change, markdownText));
    return changes;
}

} // namespace

void MarkdownStatusFormatter::format(const Report& report) {
    stream() << render("markdown_status.jinja",
                       {{"level", describeLevel(report)}, {"counts", describeCounts(report)}});
}

void MarkdownChangelogFormatter::format(const Report& report) {
    stream() << render("markdown_changelog.jinja",
                       describeChangelog(static_cast<const ChangelogReport&>(report), markdownText));
}

void MarkdownDetailsFormatter::format(const Report& report) {
    const auto& details = static_cast<const DetailedReport&>(report);
    // One level at a time, because what templates take is many times larger than changes are.
    for (const ChangeLevel level :
         {ChangeLevel::Breaking, ChangeLevel::NonBreaking, ChangeLevel::NonFunctional})
        if (report.count(level) > 0)
            stream() << render("markdown_details.jinja", {{"heading", changeLevelHeading(level)},
                                                          {"changes", describeChanges(details, level)}});
    if (report.level() == ChangeLevel::None)
        stream() << render("markdown_details.jinja", {{"heading", changeLevelHeading(ChangeLevel::None)},
                                                      {"changes", nlohmann::json::array()}});
}

} // namespace specloom::openapi_diff
