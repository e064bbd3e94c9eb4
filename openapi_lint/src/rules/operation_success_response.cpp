#include "openapi_lint/rules/operation_success_response.h"

#include "openapi/operation.h"
#include "openapi_lint/rule_handler.h"

#include <algorithm>   // std::none_of
#include <string_view> // std::string_view

namespace specloom::openapi_lint {
namespace {

constexpr const char* noSuccess = "Operation must have at least one success response";

bool isSuccess(std::string_view code) {
    return code.starts_with('2') || code.starts_with('3') || code == "default";
}

class OperationSuccessResponseHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::Operation& operation) override {
        if (isDisabled(operation))
            return;
        const openapi::Responses& responses = operation.responses();
        if (std::none_of(responses.begin(), responses.end(),
                         [](const auto& entry) { return isSuccess(entry.name()); }))
            report(noSuccess, operation);
    }
};

} // namespace

void OperationSuccessResponse::check(LintContext& context) {
    OperationSuccessResponseHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
