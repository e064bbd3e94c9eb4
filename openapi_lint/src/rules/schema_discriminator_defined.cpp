#include "openapi_lint/rules/schema_discriminator_defined.h"

#include "openapi/schema.h"
#include "openapi_lint/rule_handler.h"

namespace specloom::openapi_lint {
namespace {

constexpr const char* noDiscriminator = "Schema with oneOf clause does not have a discriminator";

class SchemaDiscriminatorDefinedHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::Schema& schema) override {
        if (!schema.oneOf().empty() && schema.discriminator() == nullptr && !isDisabled(schema))
            report(noDiscriminator, schema);
    }
};

} // namespace

void SchemaDiscriminatorDefined::check(LintContext& context) {
    SchemaDiscriminatorDefinedHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
