#include "openapi_lint/template_report.h"

#include "openapi_lint/report_templates.h"
#include "templating/template_set.h"

namespace specloom::openapi_lint {

void setFiles(jv::JV& data, const LintContext& context, reporting::EscapeText escape,
              void (*describeIssue)(jv::JV& issue, const LintResult& result)) {
    jv::JV* files = data.setArray("files");
    for (const auto& [filename, indices] : context.groupByFile()) {
        jv::JV* file = files->appendObject();
        const std::string name = escape(filename);
        file->setString("path", name);
        file->setString("name", name);
        // Every test case of JUnit fails, because what passes is no finding: its two counts are always the
        // same.
        const auto count = static_cast<std::int64_t>(indices.size());
        file->setInteger("totalCount", count);
        file->setInteger("issueCount", count);
        jv::JV* issues = file->setArray("issues");
        for (const std::size_t index : indices)
            describeIssue(*issues->appendObject(), context.results[index]);
    }
}

std::string renderReport(std::string_view templateName, const jv::JV& data) {
    static const templating::TemplateSet templates({reportTemplates()});
    return templates.render(templateName, data);
}

} // namespace specloom::openapi_lint
