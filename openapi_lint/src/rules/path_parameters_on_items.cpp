#include "openapi_lint/rules/path_parameters_on_items.h"

#include "openapi/openapi.h"
#include "openapi_lint/path_parameters.h"
#include "openapi_lint/rule_handler.h"

namespace specloom::openapi_lint {
namespace {

constexpr const char* missingOnItem = "One or more path parameters are missing or not defined in path item";

class PathParametersOnItemsHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::PathItem& item) override {
        if (isDisabled(item))
            return;
        const auto url = context().root().paths().urlOf(&item);
        if (!url)
            return;
        PathParameterNames names = extractPathParameters(*url);
        erasePathParameters(names, item.parameters());
        if (!names.empty())
            report(missingOnItem, item);
    }
};

} // namespace

void PathParametersOnItems::check(LintContext& context) {
    PathParametersOnItemsHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
