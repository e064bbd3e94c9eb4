#include "openapi_lint/rules/schema_enum_naming.h"

#include "openapi/schema.h"
#include "openapi_lint/rule_handler.h"
#include "openapi_lint/rule_options.h"

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

constexpr const char* wrongName = "Schema enum value '{}' is not in the '{}' convention";

class SchemaEnumNamingHandler final : public RuleHandler {
  public:
    SchemaEnumNamingHandler(const SchemaEnumNaming& rule, LintContext& context)
        : RuleHandler(rule, context), convention_(rule.convention()) {}

    using RuleHandler::visit;
    void visit(const openapi::Schema& schema) override {
        if (schema.enumeration().empty() || isDisabled(schema))
            return;
        for (const openapi::Value& value : schema.enumeration())
            if (value->isString())
                judge(value->text(), schema);
    }

  private:
    void judge(std::string_view name, const openapi::Schema& schema) const {
        if (convertCase(name, convention_) != name)
            report(fmt::format(wrongName, name, caseStyleName(convention_)), schema);
    }

    NamingConvention convention_;
};

} // namespace

void SchemaEnumNaming::configure(const jv::JV* options) {
    convention_ = optionsNamingConvention(options, ruleId);
}

void SchemaEnumNaming::check(LintContext& context) {
    SchemaEnumNamingHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
