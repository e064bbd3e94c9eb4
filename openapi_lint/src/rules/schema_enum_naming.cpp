#include "openapi_lint/rules/schema_enum_naming.h"

#include "openapi/schema.h"

namespace specloom::openapi_lint {
namespace {

constexpr const char* wrongEnumName = "Schema enum value '{}' is not in the '{}' convention";

class SchemaEnumNamingHandler final : public NamingHandler {
  public:
    using NamingHandler::NamingHandler;
    using NamingHandler::visit;
    void visit(const openapi::Schema& schema) override {
        if (schema.enumeration().empty() || isDisabled(schema))
            return;
        for (const openapi::Value& value : schema.enumeration())
            if (value->isString())
                judge(value->text(), wrongEnumName, schema);
    }
};

} // namespace

void SchemaEnumNaming::check(LintContext& context) {
    SchemaEnumNamingHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
