#include "openapi_lint/rules/operation_description_defined.h"

#include "openapi/operation.h"
#include "openapi_lint/rule_handler.h"
#include "openapi_lint/rule_options.h"
#include "openapi_lint/texts.h"

namespace specloom::openapi_lint {
namespace {

constexpr const char* operationNotDescribed = "Operation has no meaningful description";

class OperationDescriptionDefinedHandler final : public RuleHandler {
  public:
    OperationDescriptionDefinedHandler(const Rule& rule, LintContext& context, const number::Number& minimum)
        : RuleHandler(rule, context), minimum_(minimum) {}

    using RuleHandler::visit;
    void visit(const openapi::Operation& operation) override {
        if (!isDisabled(operation) && !isMeaningfulText(operation.description(), minimum_))
            report(operationNotDescribed, operation);
    }

  private:
    const number::Number& minimum_;
};

} // namespace

void OperationDescriptionDefined::configure(const jv::JV* options) {
    minimum_ = optionsPositiveNumber(options, ruleId);
}

void OperationDescriptionDefined::check(LintContext& context) {
    OperationDescriptionDefinedHandler handler(*this, context, minimum_);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
