#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `operation-rate-limiting-defined`: responses tell their limits of rate.
///
/// Finds responses of the codes 429 and 503 without the header Retry-After, and responses whose code
/// begins with 2 or 4 without a header that tells the limit. Header names are compared exactly. Can be
/// disabled on the responses and on the response.
///
/// Fails: `"429": {description: Too many requests}`.
/// Passes: `"429": {description: Too many requests, headers: {Retry-After: {}, RateLimit-Limit: {}}}`.
class OperationRateLimitingDefined final : public Rule {
  public:
    static constexpr std::string_view ruleId = "operation-rate-limiting-defined";
    explicit OperationRateLimitingDefined(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
