#include "openapi_lint/rules/no_content_response_defined.h"

#include "openapi/operation.h"
#include "openapi_lint/rule_handler.h"

namespace specloom::openapi_lint {
namespace {

constexpr const char* hasBody = "204 response may not have a body defined";

class NoContentResponseDefinedHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::Operation& operation) override {
        if (isDisabled(operation))
            return;
        const openapi::Response* response = operation.responses().find("204");
        if (response != nullptr && !response->content().empty())
            report(hasBody, *response);
    }
};

} // namespace

void NoContentResponseDefined::check(LintContext& context) {
    NoContentResponseDefinedHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
