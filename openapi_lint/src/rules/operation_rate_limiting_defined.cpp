#include "openapi_lint/rules/operation_rate_limiting_defined.h"

#include "openapi/responses.h"
#include "openapi_lint/rule_handler.h"

#include <algorithm>   // std::any_of
#include <array>       // std::array
#include <string_view> // std::string_view

namespace specloom::openapi_lint {
namespace {

constexpr const char* retryAfterMissing = "Missing Retry-After header";
constexpr const char* rateLimitMissing = "Missing rate limiting header";

/// One of them is enough.
constexpr std::array<std::string_view, 3> rateLimitHeaders = {"RateLimit-Limit", "X-RateLimit-Limit",
                                                              "X-Rate-Limit-Limit"};

bool hasRateLimit(const openapi::Response& response) {
    return std::any_of(rateLimitHeaders.begin(), rateLimitHeaders.end(),
                       [&](std::string_view name) { return response.header(name) != nullptr; });
}

class OperationRateLimitingDefinedHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::Responses& responses) override {
        // A response that is a component stands elsewhere, so the place of its use is asked too.
        if (isDisabled(responses))
            return;
        for (const auto& entry : responses) {
            const auto* response = openapi::resolveTo<openapi::Response>(entry.value.get());
            if (response != nullptr && !isDisabled(*response))
                check(entry.name(), *response);
        }
    }

  private:
    void check(std::string_view code, const openapi::Response& response) const {
        if ((code == "429" || code == "503") && response.header("Retry-After") == nullptr)
            report(retryAfterMissing, response);
        if ((code.starts_with('2') || code.starts_with('4')) && !hasRateLimit(response))
            report(rateLimitMissing, response);
    }
};

} // namespace

void OperationRateLimitingDefined::check(LintContext& context) {
    OperationRateLimitingDefinedHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
