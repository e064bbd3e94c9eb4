#include "openapi_lint/rules/parameters_unique.h"

#include "openapi/path_item.h"
#include "openapi_lint/rule_handler.h"

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

constexpr const char* duplicateParameter = "Duplicate parameter name '{}' in location '{}'";

class ParametersUniqueHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::Operation& operation) override {
        if (!isDisabled(operation))
            check(operation.parameters());
    }
    void visit(const openapi::PathItem& item) override {
        if (!isDisabled(item))
            check(item.parameters());
    }

  private:
    void check(const openapi::ParameterList& parameters) const {
        openapi::ParameterKeys keys;
        for (const openapi::NodePointer& node : parameters.nodes()) {
            const auto* parameter = openapi::resolveTo<openapi::Parameter>(node.get());
            if (parameter != nullptr && !keys.insert({parameter->location(), parameter->name()}))
                report(fmt::format(duplicateParameter, parameter->name(),
                                   parameterLocationName(parameter->location())),
                       *parameter);
        }
    }
};

} // namespace

void ParametersUnique::check(LintContext& context) {
    ParametersUniqueHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
