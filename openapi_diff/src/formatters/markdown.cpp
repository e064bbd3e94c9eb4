#include "openapi_diff/formatters/markdown.h"

#include <cctype>  // std::isalnum
#include <ostream> // std::ostream
#include <string>  // std::string

#include <nlohmann/json.hpp>

#include "foundation/report_text.h"
#include "foundation/strings.h"
#include "openapi_diff/formatters/template_report.h"
#include "openapi_diff/markdown_template.h"
#include "templating/templating.h"

namespace specloom::openapi_diff {
namespace {

bool isWordCharacter(std::string_view text, std::size_t at) noexcept {
    return at < text.size() && std::isalnum(static_cast<unsigned char>(text[at])) != 0;
}

/// Whether a character would be taken for Markdown (CommonMark 0.30, section 2.4). An underscore within a
/// word is none, and paths are full of them.
bool isMarkup(std::string_view text, std::size_t at) noexcept {
    if (text[at] == '_')
        return at == 0 || !isWordCharacter(text, at - 1) || !isWordCharacter(text, at + 1);
    return std::string_view("\\`*[]<>&|~").find(text[at]) != std::string_view::npos;
}

/// Text of a document as one line that Markdown shows as it is.
std::string markdownText(std::string_view text) {
    const std::string line = singleLine(toValidUtf8(text));
    std::string result;
    result.reserve(line.size());
    for (std::size_t at = 0; at < line.size(); ++at) {
        if (isMarkup(line, at))
            result += '\\';
        result += line[at];
    }
    return result;
}

std::string render(std::string_view name, const nlohmann::json& data) {
    return templating::renderNamed(name, markdownTemplate, data);
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
