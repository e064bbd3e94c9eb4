#include "openapi_lint/rules/standard_response_codes.h"

#include "openapi/responses.h"
#include "openapi_lint/response_codes.h"
#include "openapi_lint/rule_handler.h"

#include <string>      // std::string
#include <string_view> // std::string_view

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

constexpr const char* nonStandard = "Operation uses non-standard response code ({})";

class StandardResponseCodesHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::Responses& responses) override {
        if (isDisabled(responses))
            return;
        for (const auto& entry : responses)
            if (entry.name() != "default" && !isResponseCode(entry.name()) &&
                !isResponseCodeRange(entry.name()))
                report(fmt::format(nonStandard, entry.name()), responses);
    }
};

} // namespace

void StandardResponseCodes::check(LintContext& context) {
    StandardResponseCodesHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
