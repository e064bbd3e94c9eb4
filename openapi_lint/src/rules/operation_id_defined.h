#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `operation-id-defined`: an operation has an id.
///
/// Finds an operation without operationId, or with an empty one. Can be disabled on the operation.
///
/// Fails: `get: {responses: {}}`.
/// Passes: `get: {operationId: listTides, responses: {}}`.
class OperationIdDefined final : public Rule {
  public:
    static constexpr std::string_view ruleId = "operation-id-defined";
    explicit OperationIdDefined(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
