#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `schema-enum-no-duplicates`: no value stands twice in an `enum`.
///
/// Finds each value that equals one before it: numbers by value, objects without regard to the order of their
/// keys. Can be disabled on the schema. The fix keeps the first of equal values.
///
/// Fails: `enum: [low, high, low]`.
/// Passes: `enum: [low, high]`.
class SchemaEnumNoDuplicates final : public Rule {
  public:
    static constexpr std::string_view ruleId = "schema-enum-no-duplicates";
    explicit SchemaEnumNoDuplicates(Severity severity) : Rule(ruleId, severity) {}
    [[nodiscard]] bool isFixable() const override { return true; }
    void check(LintContext& context) override;
    void fix(LintContext& context) override;
};

} // namespace specloom::openapi_lint
