#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `operation-security-defined`: every operation says what access it needs.
///
/// Finds operations with no security requirement of their own in a document that has none for all. Can be
/// disabled on the operation.
///
/// Fails: `get: {responses: {}}` without `security` in the document, and `get: {security: [], responses:
/// {}}`.
/// Passes: `get: {security: [{key: []}], responses: {}}`.
class OperationSecurityDefined final : public Rule {
  public:
    static constexpr std::string_view ruleId = "operation-security-defined";
    explicit OperationSecurityDefined(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
