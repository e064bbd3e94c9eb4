#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `unused-request-body`: a request that has no use for a body has none.
///
/// Finds operations of the methods get, head and trace with a request body. Can be disabled on the
/// operation and on the path item.
///
/// Fails: `get: {requestBody: {content: {}}, responses: {}}`.
/// Passes: `post: {requestBody: {content: {}}, responses: {}}`.
class UnusedRequestBody final : public Rule {
  public:
    static constexpr std::string_view ruleId = "unused-request-body";
    explicit UnusedRequestBody(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
