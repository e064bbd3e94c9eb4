#include "openapi_lint/rules/schema_datetime_suffix.h"

#include "openapi/schema.h"
#include "openapi_lint/rule_handler.h"
#include "openapi_lint/rule_options.h"

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

constexpr const char* noSuffix = "Property name {} should end with {}";

bool isDateTime(const openapi::Node& property) {
    const auto* schema = openapi::resolveTo<openapi::Schema>(&property);
    return schema != nullptr && schema->format() != nullptr && schema->format()->name == "date-time";
}

class SchemaDatetimeSuffixHandler final : public RuleHandler {
  public:
    SchemaDatetimeSuffixHandler(const SchemaDatetimeSuffix& rule, LintContext& context)
        : RuleHandler(rule, context), suffix_(rule.suffix()) {}

    using RuleHandler::visit;
    void visit(const openapi::Schema& schema) override {
        if (schema.properties().empty() || isDisabled(schema))
            return;
        for (const auto& entry : schema.properties())
            if (!entry.name().ends_with(suffix_) && isDateTime(*entry.value))
                report(fmt::format(noSuffix, entry.name(), suffix_), schema);
    }

  private:
    std::string_view suffix_;
};

} // namespace

void SchemaDatetimeSuffix::configure(const jv::JV* options) {
    const jv::JV& value = requireOptions(options, ruleId);
    if (!value.isString())
        throw RuleConfigurationError(ruleId, "Options must be a string");
    if (value.text().empty())
        throw RuleConfigurationError(ruleId, "Options must not be empty");
    suffix_ = value.text();
}

void SchemaDatetimeSuffix::check(LintContext& context) {
    SchemaDatetimeSuffixHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
