#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `schema-enum-types`: the values of an `enum` are of the types of their schema.
///
/// Finds schemas with a value under `enum` or `const` of a type that `type` does not name; one finding for
/// each schema, and none for a schema without `type`. No document can hold such a value. Can be disabled on
/// the schema.
///
/// Fails: `{type: integer, enum: [1, two]}`.
/// Passes: `{type: [integer, string], enum: [1, two]}`.
class SchemaEnumTypes final : public Rule {
  public:
    static constexpr std::string_view ruleId = "schema-enum-types";
    explicit SchemaEnumTypes(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
