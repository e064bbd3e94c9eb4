#include "openapi_lint/rules/json_api_resource_type_unique.h"

namespace specloom::openapi_lint {

ResourceTypeUnique::ResourceTypeUnique(Severity severity) : Rule(ruleId, severity) {}

} // namespace specloom::openapi_lint
