#include "openapi_lint/rules/openapi_json_schema_validation.h"

namespace specloom::openapi_lint {

OpenAPIJSONSchemaValidation::OpenAPIJSONSchemaValidation(Severity severity) : Rule(ruleId, severity) {}

} // namespace specloom::openapi_lint
