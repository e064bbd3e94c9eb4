#pragma once

#include "number/number.h"
#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `operation-description-defined`: an operation has a description that says something.
///
/// Finds an operation without a description, with one that is too short, blank, or a placeholder. Can be
/// disabled on the operation.
///
/// Fails: `get: {description: TODO, responses: {}}`.
/// Passes: `get: {description: High and low water of one day, responses: {}}`.
class OperationDescriptionDefined final : public Rule {
  public:
    static constexpr std::string_view ruleId = "operation-description-defined";
    explicit OperationDescriptionDefined(Severity severity) : Rule(ruleId, severity) {}
    /// The least length in bytes, see optionsPositiveNumber().
    void configure(const jv::JV* options) override;
    void check(LintContext& context) override;

  private:
    number::Number minimum_ = 10; ///< bytes
};

} // namespace specloom::openapi_lint
