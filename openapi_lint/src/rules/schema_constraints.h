#pragma once

#include "openapi/schema_type.h"
#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `schema-constraints`: values have limits.
///
/// Finds schemas of the types that the rule looks at without a keyword that limits them; one finding for each
/// such type. What has no limit has to be guarded against by everybody who receives it. Can be disabled on
/// the schema.
///
/// Fails: `{type: string}`.
/// Passes: `{type: string, maxLength: 80}`.
class SchemaConstraints final : public Rule {
  public:
    static constexpr std::string_view ruleId = "schema-constraints";
    explicit SchemaConstraints(Severity severity);
    /// An object with booleans under "integer", "number", "string", "array" and "object", each of which may
    /// be absent. Throws RuleConfigurationError "Options must be an object" and "At least one of integer,
    /// number, string, array or object must be true", and jv::JVError for a member that is no boolean.
    void configure(const jv::JV* options) override;
    void check(LintContext& context) override;

    [[nodiscard]] const openapi::SchemaTypes& types() const noexcept { return types_; }

  private:
    openapi::SchemaTypes types_;
};

} // namespace specloom::openapi_lint
