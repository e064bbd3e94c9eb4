#pragma once

#include "number/number.h"
#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `parameter-description-defined`: a parameter has a description that says something.
///
/// Finds parameters without a description, with one that is too short, blank, or a placeholder; each
/// once, wherever it is used. Can be disabled on the parameter.
///
/// Fails: `{name: port, in: query}`.
/// Passes: `{name: port, in: query, description: The name of a port}`.
class ParameterDescriptionDefined final : public Rule {
  public:
    static constexpr std::string_view ruleId = "parameter-description-defined";
    explicit ParameterDescriptionDefined(Severity severity) : Rule(ruleId, severity) {}
    /// The least length in bytes, see optionsPositiveNumber().
    void configure(const jv::JV* options) override;
    void check(LintContext& context) override;

  private:
    number::Number minimum_ = 10; ///< bytes
};

} // namespace specloom::openapi_lint
