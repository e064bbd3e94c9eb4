#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `no-content-response-defined`: a 204 response has no body.
///
/// Finds a response under the code "204" that defines content. Its finding stands at the response, for
/// each operation that uses it. Can be disabled on the operation.
///
/// Fails: `"204": {description: Gone, content: {application/json: {}}}`.
/// Passes: `"204": {description: Gone}`.
class NoContentResponseDefined final : public Rule {
  public:
    static constexpr std::string_view ruleId = "no-content-response-defined";
    explicit NoContentResponseDefined(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
