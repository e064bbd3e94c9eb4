#include "openapi_lint/result_value.h"

namespace specloom::openapi_lint {

void appendResult(jv::JV& array, const LintResult& result, std::string (*clean)(std::string_view text)) {
    jv::JV* object = array.appendObject();
    object->setInteger("line", static_cast<std::int64_t>(result.printedLine()));
    object->setInteger("column", static_cast<std::int64_t>(result.printedColumn()));
    object->setString("severity", severityName(result.severity));
    object->setString("ruleId", result.ruleId);
    object->setString("message", clean(result.message));
}

} // namespace specloom::openapi_lint
