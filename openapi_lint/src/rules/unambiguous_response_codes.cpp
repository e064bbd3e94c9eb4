#include "openapi_lint/rules/unambiguous_response_codes.h"

#include "openapi/responses.h"
#include "openapi_lint/response_codes.h"
#include "openapi_lint/rule_handler.h"

#include <algorithm>   // std::any_of
#include <string_view> // std::string_view

namespace specloom::openapi_lint {
namespace {

constexpr const char* ambiguous = "Operation response codes are ambiguous";

/// Keys are in order and digits come before letters, so a range stands right behind the last of its codes.
bool areAmbiguous(const openapi::Responses& responses) {
    std::string_view previous;
    return std::any_of(responses.begin(), responses.end(), [&](const auto& entry) {
        const bool overlaps =
            isResponseCodeRange(entry.name()) && isResponseCode(previous) && previous[0] == entry.name()[0];
        if (isResponseCode(entry.name()))
            previous = entry.name();
        return overlaps;
    });
}

class UnambiguousResponseCodesHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::Responses& responses) override {
        if (!isDisabled(responses) && areAmbiguous(responses))
            report(ambiguous, responses);
    }
};

} // namespace

void UnambiguousResponseCodes::check(LintContext& context) {
    UnambiguousResponseCodesHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
