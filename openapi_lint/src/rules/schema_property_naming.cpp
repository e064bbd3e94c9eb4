#include "openapi_lint/rules/schema_property_naming.h"

#include "openapi/schema.h"
#include "openapi_lint/rule_handler.h"
#include "openapi_lint/rule_options.h"

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

constexpr const char* wrongName = "Schema property '{}' is not in the '{}' convention";

class SchemaPropertyNamingHandler final : public RuleHandler {
  public:
    SchemaPropertyNamingHandler(const SchemaPropertyNaming& rule, LintContext& context)
        : RuleHandler(rule, context), convention_(rule.convention()) {}

    using RuleHandler::visit;
    void visit(const openapi::Schema& schema) override {
        if (schema.properties().empty() || isDisabled(schema))
            return;
        for (const auto& entry : schema.properties())
            judge(entry.name(), schema);
    }

  private:
    void judge(std::string_view name, const openapi::Schema& schema) const {
        if (convertCase(name, convention_) != name)
            report(fmt::format(wrongName, name, caseStyleName(convention_)), schema);
    }

    NamingConvention convention_;
};

} // namespace

void SchemaPropertyNaming::configure(const jv::JV* options) {
    convention_ = optionsNamingConvention(options, ruleId);
}

void SchemaPropertyNaming::check(LintContext& context) {
    SchemaPropertyNamingHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
