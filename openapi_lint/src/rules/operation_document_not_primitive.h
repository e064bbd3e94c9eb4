#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `operation-document-not-primitive`: the body of a request or response is an object or an array.
///
/// Finds media types in request bodies and responses whose schema has neither the type object nor array,
/// or that have no schema. The findings stand at the media types, for each operation that uses them. Can
/// be disabled on the operation.
///
/// Fails: `content: {application/json: {schema: {type: string}}}`.
/// Passes: `content: {application/json: {schema: {type: object}}}`.
class OperationDocumentNotPrimitive final : public Rule {
  public:
    static constexpr std::string_view ruleId = "operation-document-not-primitive";
    explicit OperationDocumentNotPrimitive(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
