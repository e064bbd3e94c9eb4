#include "openapi_lint/rules/json_schema_validation.h"

#include "openapi/document_schema.h"
#include "openapi_lint/lint_context.h"

#include <fmt/core.h>

namespace specloom::openapi_lint {
namespace {

constexpr const char* failed = "JSON schema validation failed";

std::string textOf(const jv::schema::ValidationError& error) {
    if (error.instancePointer.empty())
        return error.message;
    return fmt::format("{} at {}", error.message, error.instancePointer);
}

} // namespace

void JSONSchemaValidation::check(LintContext& context) {
    const openapi::OpenAPI& root = context.root();
    const jv::schema::Schema& schema = openapi::documentSchema(root.version());
    const jv::JV& document = context.writtenValues();
    if (schema.isValid(document))
        return;
    const auto errors = schema.validate(document);
    if (errors.empty())
        report(context, failed, root);
    for (const auto& error : errors)
        report(context, textOf(error), root);
}

} // namespace specloom::openapi_lint
