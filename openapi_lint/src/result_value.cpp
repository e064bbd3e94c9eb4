#include "openapi_lint/result_value.h"

#include "foundation/strings.h"

namespace specloom::openapi_lint {

void appendResult(jv::JV& array, const LintResult& result) {
    jv::JV* object = array.appendObject();
    object->setInteger("line", static_cast<std::int64_t>(result.printedLine()));
    object->setInteger("column", static_cast<std::int64_t>(result.printedColumn()));
    object->setString("severity", severityName(result.severity));
    object->setString("ruleId", result.ruleId);
    object->setString("message", toValidUtf8(result.message));
}

} // namespace specloom::openapi_lint
