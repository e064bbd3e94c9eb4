#include "openapi_lint/rules/schema_property_naming.h"

#include "openapi/schema.h"

namespace specloom::openapi_lint {
namespace {

constexpr const char* wrongPropertyName = "Schema property '{}' is not in the '{}' convention";

class SchemaPropertyNamingHandler final : public NamingHandler {
  public:
    using NamingHandler::NamingHandler;
    using NamingHandler::visit;
    void visit(const openapi::Schema& schema) override {
        if (schema.properties().empty() || isDisabled(schema))
            return;
        for (const auto& entry : schema.properties())
            judge(entry.name(), wrongPropertyName, schema);
    }
};

} // namespace

void SchemaPropertyNaming::check(LintContext& context) {
    SchemaPropertyNamingHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
