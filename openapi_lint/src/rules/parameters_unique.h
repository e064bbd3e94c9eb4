#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `parameters-unique`: no parameter is given twice.
///
/// Finds a parameter of an operation or of a path item whose name and location an earlier one of the same
/// list has. A parameter of an operation may replace that of its path item. The finding stands at the
/// parameter itself, also when the list refers to it. Can be disabled on the operation or path item. A
/// document whose operation repeats a parameter cannot be read at all, so those are found in trees made
/// in code only.
///
/// Fails: `parameters: [{name: day, in: query}, {name: day, in: query}]`.
/// Passes: `parameters: [{name: day, in: query}, {name: day, in: header}]`.
class ParametersUnique final : public Rule {
  public:
    static constexpr std::string_view ruleId = "parameters-unique";
    explicit ParametersUnique(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
