#include "openapi_lint/rules/parameter_naming.h"

#include "configuration/section.h"
#include "openapi_lint/rule_handler.h"
#include "openapi_lint/rule_options.h"

#include <string>      // std::string
#include <string_view> // std::string_view

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

using openapi::ParameterLocation;

constexpr const char* wrongParameterName = "Parameter should be named {}";

class ParameterNamingHandler final : public RuleHandler {
  public:
    ParameterNamingHandler(const ParameterNaming& rule, LintContext& context)
        : RuleHandler(rule, context), rule_(rule) {}

    using RuleHandler::visit;
    void visit(const openapi::Parameter& parameter) override {
        if (isDisabled(parameter))
            return;
        const std::string name = convertCase(parameter.name(), rule_.conventionOf(parameter.location()));
        if (name != parameter.name())
            report(fmt::format(wrongParameterName, name), parameter);
    }

  private:
    const ParameterNaming& rule_;
};

} // namespace

void ParameterNaming::configure(const jv::JV* options) {
    const jv::JV& value = requireOptions(options, ruleId);
    if (value.isString()) {
        default_ = parseNamingConvention(value.text(), ruleId);
        return;
    }
    if (!value.isObject())
        throw RuleConfigurationError(ruleId, "Options must be a string or an object");
    const configuration::Section conventions(value);
    if (const auto convention = conventions.text("default"); convention)
        default_ = parseNamingConvention(*convention, ruleId);
    for (const auto location : {ParameterLocation::Path, ParameterLocation::Query, ParameterLocation::Header,
                                ParameterLocation::Cookie})
        if (const auto convention = conventions.text(parameterLocationName(location)); convention)
            byLocation_[location] = parseNamingConvention(*convention, ruleId);
}

NamingConvention ParameterNaming::conventionOf(ParameterLocation location) const {
    const auto found = byLocation_.find(location);
    return found == byLocation_.end() ? default_ : found->second;
}

void ParameterNaming::check(LintContext& context) {
    ParameterNamingHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
