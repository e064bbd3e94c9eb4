#pragma once

#include "openapi_lint/rule.h"
#include "openapi_lint/texts.h"

namespace specloom::openapi_lint {

/// `schema-enum-naming`: the texts of an `enum` are written in one convention.
///
/// Finds each text under `enum` or `const` that the conversion to the convention would change. Can be
/// disabled on the schema.
///
/// Fails: `enum: [highWater]`.
/// Passes: `enum: [high_water]`.
class SchemaEnumNaming final : public Rule {
  public:
    static constexpr std::string_view ruleId = "schema-enum-naming";
    explicit SchemaEnumNaming(Severity severity) : Rule(ruleId, severity) {}
    /// The name of a convention. Throws RuleConfigurationError "Options must not be null", "Options must be a
    /// string", and what parseNamingConvention() throws.
    void configure(const jv::JV* options) override;
    void check(LintContext& context) override;

    [[nodiscard]] NamingConvention convention() const noexcept { return convention_; }

  private:
    NamingConvention convention_ = NamingConvention::Snake;
};

} // namespace specloom::openapi_lint
