#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `openapi-json-schema-validation`: holds the place of a check of the document by the JSON Schema of
/// OpenAPI.
///
/// Finds nothing: `json-schema-validation` does that work. The id stands in rulesets and configurations, so
/// it is known, takes a severity, and is silent.
class OpenAPIJSONSchemaValidation final : public Rule {
  public:
    static constexpr std::string_view ruleId = "openapi-json-schema-validation";
    explicit OpenAPIJSONSchemaValidation(Severity severity);
};

} // namespace specloom::openapi_lint
