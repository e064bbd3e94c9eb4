#include "openapi_lint/rules/operation_id_defined.h"

#include "openapi/operation.h"
#include "openapi_lint/rule_handler.h"

namespace specloom::openapi_lint {
namespace {

constexpr const char* idNotDefined = "Operation ID is not defined";

class OperationIdDefinedHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::Operation& operation) override {
        if (!isDisabled(operation) && operation.operationId().value_or("").empty())
            report(idNotDefined, operation);
    }
};

} // namespace

void OperationIdDefined::check(LintContext& context) {
    OperationIdDefinedHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
