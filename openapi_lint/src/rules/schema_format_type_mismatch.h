#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `schema-format-type-mismatch`: a schema is of the type that its format is for.
///
/// Finds schemas with a known `format`, built-in or of the configuration, whose `type` does not name the type
/// that the format applies to, or that have no `type`. A format for another type restricts nothing. Can be
/// disabled on the schema.
///
/// Fails: `{type: string, format: int32}`.
/// Passes: `{type: integer, format: int32}`.
class SchemaFormatTypeMismatch final : public Rule {
  public:
    static constexpr std::string_view ruleId = "schema-format-type-mismatch";
    explicit SchemaFormatTypeMismatch(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
