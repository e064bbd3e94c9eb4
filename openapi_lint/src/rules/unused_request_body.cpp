#include "openapi_lint/rules/unused_request_body.h"

#include "openapi/path_item.h"
#include "openapi_lint/rule_handler.h"

#include <array> // std::array

namespace specloom::openapi_lint {
namespace {

using openapi::OperationType;

constexpr const char* unusedBody = "Unused request body";

/// HTTP gives the body of such a request no meaning (RFC 9110, sections 9.3.1, 9.3.8 and 9.3.2).
constexpr std::array bodilessMethods = {OperationType::Get, OperationType::Trace, OperationType::Head};

class UnusedRequestBodyHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::PathItem& item) override {
        if (isDisabled(item))
            return;
        for (const OperationType method : bodilessMethods) {
            const openapi::Operation* operation = item.operation(method);
            if (operation != nullptr && !isDisabled(*operation) && operation->requestBody() != nullptr)
                report(unusedBody, *operation);
        }
    }
};

} // namespace

void UnusedRequestBody::check(LintContext& context) {
    UnusedRequestBodyHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
