#include "openapi_lint/rules/parameter_description_defined.h"

#include "openapi/parameter.h"
#include "openapi_lint/rule_handler.h"
#include "openapi_lint/rule_options.h"
#include "openapi_lint/texts.h"

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

constexpr const char* parameterNotDescribed = "Parameter '{}' has no meaningful description";

class ParameterDescriptionDefinedHandler final : public RuleHandler {
  public:
    ParameterDescriptionDefinedHandler(const Rule& rule, LintContext& context, const number::Number& minimum)
        : RuleHandler(rule, context), minimum_(minimum) {}

    using RuleHandler::visit;
    void visit(const openapi::Parameter& parameter) override {
        if (!isDisabled(parameter) && !isMeaningfulText(parameter.description(), minimum_))
            report(fmt::format(parameterNotDescribed, parameter.name()), parameter);
    }

  private:
    const number::Number& minimum_;
};

} // namespace

void ParameterDescriptionDefined::configure(const jv::JV* options) {
    minimum_ = optionsPositiveNumber(options, ruleId);
}

void ParameterDescriptionDefined::check(LintContext& context) {
    ParameterDescriptionDefinedHandler handler(*this, context, minimum_);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
