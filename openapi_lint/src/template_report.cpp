#include "openapi_lint/template_report.h"

#include "openapi_lint/report_templates.h"
#include "templating/template_set.h"

#include <utility> // std::move

#include <nlohmann/json.hpp>

namespace specloom::openapi_lint {

nlohmann::json describeFiles(const LintContext& context, reporting::EscapeText escape,
                             nlohmann::json (*describeIssue)(const LintResult& result)) {
    nlohmann::json files = nlohmann::json::array();
    for (const auto& [filename, indices] : context.groupByFile()) {
        nlohmann::json issues = nlohmann::json::array();
        for (const std::size_t index : indices)
            issues.push_back(describeIssue(context.results[index]));
        const std::string name = escape(filename);
        // Every test case of JUnit fails, because what passes is no finding: its two counts are always the
        // same.
        files.push_back({{"path", name},
                         {"name", name},
                         {"totalCount", indices.size()},
                         {"issueCount", indices.size()},
                         {"issues", std::move(issues)}});
    }
    return files;
}

std::string renderReport(std::string_view templateName, const nlohmann::json& data) {
    static const templating::TemplateSet templates({reportTemplates()});
    return templates.render(templateName, data);
}

} // namespace specloom::openapi_lint
