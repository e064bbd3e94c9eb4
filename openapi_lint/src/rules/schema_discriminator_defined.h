#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `schema-discriminator-defined`: alternatives can be told apart.
///
/// Finds schemas with `oneOf` and without `discriminator`. Can be disabled on the schema.
///
/// Fails: `oneOf: [{$ref: '#/components/schemas/Port'}, {$ref: '#/components/schemas/Pier'}]`.
/// Passes: the same with `discriminator: {propertyName: kind}`.
class SchemaDiscriminatorDefined final : public Rule {
  public:
    static constexpr std::string_view ruleId = "schema-discriminator-defined";
    explicit SchemaDiscriminatorDefined(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
