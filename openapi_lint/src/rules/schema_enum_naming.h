#pragma once

#include "openapi_lint/naming_rule.h"

namespace specloom::openapi_lint {

/// `schema-enum-naming`: the texts of an `enum` are written in one convention.
///
/// Finds each text under `enum` or `const` that the conversion to the convention would change. Can be
/// disabled on the schema.
///
/// Fails: `enum: [highWater]`.
/// Passes: `enum: [high_water]`.
class SchemaEnumNaming final : public NamingRule {
  public:
    static constexpr std::string_view ruleId = "schema-enum-naming";
    explicit SchemaEnumNaming(Severity severity) : NamingRule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
