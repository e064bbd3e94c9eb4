#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `schema-no-additional-properties`: an object says what else it may hold.
///
/// Finds schemas whose `type` names object without `additionalProperties`; which schema stands there does not
/// matter. Can be disabled on the schema.
///
/// Fails: `{type: object, properties: {port: {}}}`.
/// Passes: `{type: object, properties: {port: {}}, additionalProperties: false}`.
class SchemaNoAdditionalProperties final : public Rule {
  public:
    static constexpr std::string_view ruleId = "schema-no-additional-properties";
    explicit SchemaNoAdditionalProperties(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
