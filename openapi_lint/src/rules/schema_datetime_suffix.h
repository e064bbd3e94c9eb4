#pragma once

#include "openapi_lint/rule.h"

#include <string> // std::string

namespace specloom::openapi_lint {

/// `schema-datetime-suffix`: the names of points in time show that they are.
///
/// Finds each property whose schema, also behind a reference, has the format `date-time` and whose name does
/// not end with the suffix. Can be disabled on the schema that has the property.
///
/// Fails: `properties: {arrival: {type: string, format: date-time}}`.
/// Passes: `properties: {arrived_at: {type: string, format: date-time}}`.
class SchemaDatetimeSuffix final : public Rule {
  public:
    static constexpr std::string_view ruleId = "schema-datetime-suffix";
    explicit SchemaDatetimeSuffix(Severity severity) : Rule(ruleId, severity) {}
    /// The suffix. Throws RuleConfigurationError "Options must not be null", "Options must be a string" and
    /// "Options must not be empty".
    void configure(const jv::JV* options) override;
    void check(LintContext& context) override;

    [[nodiscard]] std::string_view suffix() const noexcept { return suffix_; }

  private:
    std::string suffix_ = "_at";
};

} // namespace specloom::openapi_lint
