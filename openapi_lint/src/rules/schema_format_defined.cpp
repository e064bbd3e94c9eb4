#include "openapi_lint/rules/schema_format_defined.h"

#include "openapi/schema.h"
#include "openapi_lint/rule_handler.h"

namespace specloom::openapi_lint {
namespace {

constexpr const char* noIntegerFormat = "Schema with integer type does not define proper format";
constexpr const char* noNumberFormat = "Schema with number type does not define proper format";

class SchemaFormatDefinedHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::Schema& schema) override {
        if (schema.types().size() != 1)
            return;
        const openapi::SchemaType type = schema.types().single();
        const openapi::SchemaFormat* format = schema.format();
        const std::string_view name = format == nullptr ? std::string_view() : format->name;
        if (type == openapi::SchemaType::Integer && name != "int32" && name != "int64") {
            if (!isDisabled(schema))
                report(noIntegerFormat, schema);
        } else if (type == openapi::SchemaType::Number && name != "double" && name != "float") {
            if (!isDisabled(schema))
                report(noNumberFormat, schema);
        }
    }
};

} // namespace

void SchemaFormatDefined::check(LintContext& context) {
    SchemaFormatDefinedHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
