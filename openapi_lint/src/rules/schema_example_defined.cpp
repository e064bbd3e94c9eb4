#include "openapi_lint/rules/schema_example_defined.h"

namespace specloom::openapi_lint {

SchemaExampleDefined::SchemaExampleDefined(Severity severity) : Rule(ruleId, severity) {}

} // namespace specloom::openapi_lint
