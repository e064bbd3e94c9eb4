#pragma once

#include "openapi_lint/naming_rule.h"

namespace specloom::openapi_lint {

/// `schema-property-naming`: the properties of a schema are named by one convention.
///
/// Finds each name under `properties` that the conversion to the convention would change. Can be disabled on
/// the schema that has the property.
///
/// Fails: `properties: {portName: {}}`.
/// Passes: `properties: {port_name: {}}`.
class SchemaPropertyNaming final : public NamingRule {
  public:
    static constexpr std::string_view ruleId = "schema-property-naming";
    explicit SchemaPropertyNaming(Severity severity) : NamingRule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
