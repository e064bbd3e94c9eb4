#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `json-schema-validation`: the document satisfies the JSON Schema of OpenAPI.
///
/// Finds what breaks the published schema of OpenAPI 3.0 or 3.1, by the version that the document names:
/// members that an object does not have, values of the wrong kind, response codes and component names of the
/// wrong form. Every finding stands on the document, since the schema knows values and not objects of the
/// API; the text ends with the place. Cannot be disabled in the document.
///
/// Fails: `responses: {4xx: {description: None}}`.
/// Passes: `responses: {4XX: {description: None}}`.
class JSONSchemaValidation final : public Rule {
  public:
    static constexpr std::string_view ruleId = "json-schema-validation";
    explicit JSONSchemaValidation(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
