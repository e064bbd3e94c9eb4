#include "openapi_lint/rules/json_api_schema_validation.h"

namespace specloom::openapi_lint {

JSONAPISchemaValidation::JSONAPISchemaValidation(Severity severity) : Rule(ruleId, severity) {}

} // namespace specloom::openapi_lint
