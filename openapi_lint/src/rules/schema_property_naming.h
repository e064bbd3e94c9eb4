#pragma once

#include "openapi_lint/rule.h"
#include "openapi_lint/texts.h"

namespace specloom::openapi_lint {

/// `schema-property-naming`: the properties of a schema are named by one convention.
///
/// Finds each name under `properties` that the conversion to the convention would change. Can be disabled on
/// the schema that has the property.
///
/// Fails: `properties: {portName: {}}`.
/// Passes: `properties: {port_name: {}}`.
class SchemaPropertyNaming final : public Rule {
  public:
    static constexpr std::string_view ruleId = "schema-property-naming";
    explicit SchemaPropertyNaming(Severity severity) : Rule(ruleId, severity) {}
    /// The name of a convention. Throws RuleConfigurationError "Options must not be null", "Options must be a
    /// string", and what parseNamingConvention() throws.
    void configure(const jv::JV* options) override;
    void check(LintContext& context) override;

    [[nodiscard]] NamingConvention convention() const noexcept { return convention_; }

  private:
    NamingConvention convention_ = NamingConvention::Snake;
};

} // namespace specloom::openapi_lint
