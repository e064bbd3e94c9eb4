#pragma once

#include "openapi/parameter.h"
#include "openapi_lint/rule.h"
#include "openapi_lint/texts.h"

#include <map> // std::map

namespace specloom::openapi_lint {

/// `parameter-naming`: parameters are named by one convention.
///
/// Finds parameters whose name the conversion to the convention of their location would change; each
/// once, wherever it is used. Can be disabled on the parameter.
///
/// Fails: `{name: portName, in: query}`.
/// Passes: `{name: port-name, in: query}`.
class ParameterNaming final : public Rule {
  public:
    static constexpr std::string_view ruleId = "parameter-naming";
    explicit ParameterNaming(Severity severity) : Rule(ruleId, severity) {}
    /// A convention for all locations without one of their own, or an object with conventions under
    /// "default", "path", "query", "header" and "cookie", each of which may be absent. Throws
    /// RuleConfigurationError "Options must not be null", "Options must be a string or an object", what
    /// parseNamingConvention() throws, and jv::JVError for a member that is no string.
    void configure(const jv::JV* options) override;
    void check(LintContext& context) override;

    [[nodiscard]] NamingConvention conventionOf(openapi::ParameterLocation location) const;

  private:
    NamingConvention default_ = NamingConvention::Snake;
    std::map<openapi::ParameterLocation, NamingConvention> byLocation_ = {
        {openapi::ParameterLocation::Query, NamingConvention::Kebab},
        {openapi::ParameterLocation::Header, NamingConvention::Header}};
};

} // namespace specloom::openapi_lint
