#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `schema-format-defined`: numbers have a format that tells their size.
///
/// Finds schemas of the one type integer without `int32` or `int64`, and of the one type number without
/// `double` or `float`. Schemas of several types are not looked at. Can be disabled on the schema.
///
/// Fails: `{type: integer}`.
/// Passes: `{type: integer, format: int64}`.
class SchemaFormatDefined final : public Rule {
  public:
    static constexpr std::string_view ruleId = "schema-format-defined";
    explicit SchemaFormatDefined(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
