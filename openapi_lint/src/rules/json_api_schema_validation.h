#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `json-api/schema-validation`: holds the place of a check of schemas by the structure of JSON:API
/// documents.
///
/// Finds nothing. The id stands in the ruleset "json-api", so it is known, takes a severity, and is silent.
class JSONAPISchemaValidation final : public Rule {
  public:
    static constexpr std::string_view ruleId = "json-api/schema-validation";
    explicit JSONAPISchemaValidation(Severity severity);
};

} // namespace specloom::openapi_lint
