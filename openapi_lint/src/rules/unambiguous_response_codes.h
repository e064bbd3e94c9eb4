#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `unambiguous-response-codes`: a code and the range that holds it do not both have a response.
///
/// Finds responses objects that have a range such as "4XX" and a code that begins with the same digit;
/// each once. Can be disabled on the responses object.
///
/// Fails: `responses: {"404": {description: None}, 4XX: {description: Wrong}}`.
/// Passes: `responses: {"404": {description: None}, 5XX: {description: Broken}}`.
class UnambiguousResponseCodes final : public Rule {
  public:
    static constexpr std::string_view ruleId = "unambiguous-response-codes";
    explicit UnambiguousResponseCodes(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
