#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `operation-id-unique`: no two operations have the same id.
///
/// Finds an operation whose operationId an earlier one has, in the order of the walk: by path, then by
/// method. The first one is not reported. An operation on which the rule is disabled still takes its id.
/// Can be disabled on the operation.
///
/// Fails: `/a: {get: {operationId: list}}`, `/b: {get: {operationId: list}}`.
/// Passes: `/a: {get: {operationId: listA}}`, `/b: {get: {operationId: listB}}`.
class OperationIdUnique final : public Rule {
  public:
    static constexpr std::string_view ruleId = "operation-id-unique";
    explicit OperationIdUnique(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
