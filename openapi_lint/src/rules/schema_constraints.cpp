#include "openapi_lint/rules/schema_constraints.h"

#include "configuration/section.h"
#include "openapi/schema.h"
#include "openapi_lint/rule_handler.h"
#include "openapi_lint/rule_options.h"

#include <string_view> // std::string_view

namespace specloom::openapi_lint {
namespace {

using openapi::Schema;
using openapi::SchemaKeyword;
using openapi::SchemaType;

bool hasRange(const Schema& schema) {
    return (schema.has(SchemaKeyword::Minimum) || schema.has(SchemaKeyword::ExclusiveMinimum)) &&
           (schema.has(SchemaKeyword::Maximum) || schema.has(SchemaKeyword::ExclusiveMaximum));
}

bool hasLength(const Schema& schema) {
    return schema.has(SchemaKeyword::MaxLength) || schema.format() != nullptr ||
           schema.has(SchemaKeyword::Pattern) || !schema.enumeration().empty();
}

bool hasMaximumItems(const Schema& schema) {
    return schema.has(SchemaKeyword::MaxItems);
}

/// Where no other members are allowed, the properties are the limit.
bool hasMaximumProperties(const Schema& schema) {
    if (schema.has(SchemaKeyword::MaxProperties))
        return true;
    const Schema* additional = schema.additionalProperties();
    return additional != nullptr && additional->isAlwaysFalse();
}

struct Constraint {
    SchemaType type;
    std::string_view option;
    bool (*isMet)(const Schema& schema);
    const char* message;
};

constexpr Constraint constraints[] = {
    {SchemaType::Integer, "integer", hasRange,
     "Integer schema does not define constraints restricting its range"},
    {SchemaType::Number, "number", hasRange,
     "Numeric schema does not define constraints restricting its range"},
    {SchemaType::String, "string", hasLength,
     "String schema does not define constraints restricting its length"},
    {SchemaType::Array, "array", hasMaximumItems,
     "Array schema does not define constraints restricting its size"},
    {SchemaType::Object, "object", hasMaximumProperties,
     "Object schema does not define constraints restricting its size"},
};

class SchemaConstraintsHandler final : public RuleHandler {
  public:
    SchemaConstraintsHandler(const SchemaConstraints& rule, LintContext& context)
        : RuleHandler(rule, context), types_(rule.types()) {}

    using RuleHandler::visit;
    void visit(const Schema& schema) override {
        if (schema.types().empty() || isDisabled(schema))
            return;
        for (const Constraint& constraint : constraints)
            if (schema.types().has(constraint.type) && types_.has(constraint.type) &&
                !constraint.isMet(schema))
                report(constraint.message, schema);
    }

  private:
    openapi::SchemaTypes types_;
};

} // namespace

SchemaConstraints::SchemaConstraints(Severity severity) : Rule(ruleId, severity) {
    for (const Constraint& constraint : constraints)
        types_.add(constraint.type);
}

void SchemaConstraints::configure(const jv::JV* options) {
    if (options == nullptr || !options->isObject())
        throw RuleConfigurationError(ruleId, "Options must be an object");
    openapi::SchemaTypes types;
    for (const Constraint& constraint : constraints)
        if (configuration::Section(*options).boolean(constraint.option).value_or(false))
            types.add(constraint.type);
    if (types.empty())
        throw RuleConfigurationError(ruleId,
                                     "At least one of integer, number, string, array or object must be true");
    types_ = types;
}

void SchemaConstraints::check(LintContext& context) {
    SchemaConstraintsHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
