#include "openapi_lint/formatters/json_formatter.h"

#include "foundation/utf8.h"
#include "openapi_lint/lint_context.h"
#include "openapi_lint/result_value.h"
#include "reporting/json.h"

namespace specloom::openapi_lint {

void JSONFormatter::format(const LintContext& context) {
    jv::JVDocument report;
    jv::JV* files = report.makeRoot(jv::Kind::Object);
    for (const auto& [filename, indices] : context.groupByFile()) {
        jv::JV* issues = files->setArray(toValidUtf8(filename));
        for (const std::size_t index : indices)
            appendResult(*issues, context.results[index], toValidUtf8);
    }
    reporting::writeJson(report, stream());
}

} // namespace specloom::openapi_lint
