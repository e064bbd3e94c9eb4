#include "openapi_lint/result_value.h"

#include "reporting/place.h"

namespace specloom::openapi_lint {

void appendResult(jv::JV& array, const LintResult& result, reporting::EscapeText escape) {
    jv::JV* object = array.appendObject();
    reporting::setPos(*object, result.pos());
    object->setString("severity", severityName(result.severity));
    object->setString("ruleId", result.ruleId);
    object->setString("message", escape(result.message));
}

} // namespace specloom::openapi_lint
