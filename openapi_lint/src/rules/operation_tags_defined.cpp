#include "openapi_lint/rules/operation_tags_defined.h"

#include "openapi/operation.h"
#include "openapi_lint/rule_handler.h"

namespace specloom::openapi_lint {
namespace {

constexpr const char* tagsNotDefined = "Operation has no tags defined";

class OperationTagsDefinedHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::Operation& operation) override {
        if (!isDisabled(operation) && operation.tags().empty())
            report(tagsNotDefined, operation);
    }
};

} // namespace

void OperationTagsDefined::check(LintContext& context) {
    OperationTagsDefinedHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
