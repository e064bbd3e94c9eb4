#include "openapi_lint/rules/schema_format_type_mismatch.h"

#include "openapi/schema.h"
#include "openapi_lint/rule_handler.h"

namespace specloom::openapi_lint {
namespace {

constexpr const char* mismatch = "Schema type and format do not match";

class SchemaFormatTypeMismatchHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::Schema& schema) override {
        const openapi::SchemaFormat* format = schema.format();
        if (format != nullptr && !schema.types().has(format->type) && !isDisabled(schema))
            report(mismatch, schema);
    }
};

} // namespace

void SchemaFormatTypeMismatch::check(LintContext& context) {
    SchemaFormatTypeMismatchHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
