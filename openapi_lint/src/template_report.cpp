#include "openapi_lint/template_report.h"

#include <utility> // std::move

#include <nlohmann/json.hpp>

#include "openapi_lint/report_templates.h"
#include "templating/template_set.h"

namespace specloom::openapi_lint {

nlohmann::json
describeFiles(const LintContext& context,
              const std::function<nlohmann::json(std::string_view name, std::size_t count)>& describeFile,
              const std::function<nlohmann::json(const LintResult& result)>& describeIssue) {
    nlohmann::json files = nlohmann::json::array();
    for (const auto& [name, indices] : context.groupByFile()) {
        nlohmann::json issues = nlohmann::json::array();
        for (const std::size_t index : indices)
            issues.push_back(describeIssue(context.results[index]));
        nlohmann::json file = describeFile(name, indices.size());
        file["issues"] = std::move(issues);
        files.push_back(std::move(file));
    }
    return files;
}

std::string renderReport(std::string_view templateName, const nlohmann::json& data) {
    static const templating::TemplateSet templates({reportTemplates()});
    return templates.render(templateName, data);
}

} // namespace specloom::openapi_lint
