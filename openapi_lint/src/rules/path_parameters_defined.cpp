#include "openapi_lint/rules/path_parameters_defined.h"

#include "openapi/openapi.h"
#include "openapi_lint/path_parameters.h"
#include "openapi_lint/rule_handler.h"

namespace specloom::openapi_lint {
namespace {

constexpr const char* missingParameters = "One or more path parameters are missing";

class PathParametersDefinedHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::Operation& operation) override {
        if (isDisabled(operation))
            return;
        // Whatever stands below the paths, webhooks, callbacks or components that hold it is a path item.
        const auto& item = static_cast<const openapi::PathItem&>(*operation.parent());
        const auto url = context().root().paths().urlOf(&item);
        if (!url)
            return;
        PathParameterNames names = extractPathParameters(*url);
        erasePathParameters(names, operation.parameters());
        erasePathParameters(names, item.parameters());
        if (!names.empty())
            report(missingParameters, operation);
    }
};

} // namespace

void PathParametersDefined::check(LintContext& context) {
    PathParametersDefinedHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
