#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `standard-response-codes`: responses have status codes that HTTP knows.
///
/// Finds keys of a responses object that are neither three digits of which the first is 1 to 5, nor such
/// a digit and "XX". "default" is no code and passes. Can be disabled on the responses object.
///
/// Fails: `responses: {"600": {description: What}}`.
/// Passes: `responses: {"404": {description: None}, 5XX: {description: Broken}}`.
class StandardResponseCodes final : public Rule {
  public:
    static constexpr std::string_view ruleId = "standard-response-codes";
    explicit StandardResponseCodes(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
