#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `operation-success-response`: an operation tells what it answers when all goes well.
///
/// Finds operations none of whose responses has a code that begins with 2 or 3, nor is "default". Can be
/// disabled on the operation.
///
/// Fails: `responses: {"404": {description: None}}`.
/// Passes: `responses: {"200": {description: One}}`.
class OperationSuccessResponse final : public Rule {
  public:
    static constexpr std::string_view ruleId = "operation-success-response";
    explicit OperationSuccessResponse(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
