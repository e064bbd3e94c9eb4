#include "openapi_lint/rules/operation_security_defined.h"

#include "openapi/openapi.h"
#include "openapi_lint/rule_handler.h"

namespace specloom::openapi_lint {
namespace {

constexpr const char* securityNotDefined = "Security requirement is not defined";

class OperationSecurityDefinedHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::OpenAPI& root) override { isDefinedForAll_ = !root.security().empty(); }
    void visit(const openapi::Operation& operation) override {
        if (!isDisabled(operation) && !isDefinedForAll_ && operation.security().empty())
            report(securityNotDefined, operation);
    }

  private:
    bool isDefinedForAll_ = false;
};

} // namespace

void OperationSecurityDefined::check(LintContext& context) {
    OperationSecurityDefinedHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
