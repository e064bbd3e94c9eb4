#include "openapi_lint/rules/schema_no_additional_properties.h"

#include "openapi/schema.h"
#include "openapi_lint/rule_handler.h"

namespace specloom::openapi_lint {
namespace {

constexpr const char* open = "Object schema does not disable additional properties";

class SchemaNoAdditionalPropertiesHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::Schema& schema) override {
        if (schema.types().has(openapi::SchemaType::Object) &&
            !schema.has(openapi::SchemaKeyword::AdditionalProperties) && !isDisabled(schema))
            report(open, schema);
    }
};

} // namespace

void SchemaNoAdditionalProperties::check(LintContext& context) {
    SchemaNoAdditionalPropertiesHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
