#include "openapi_lint/rules/operation_document_not_primitive.h"

#include "openapi/operation.h"
#include "openapi_lint/rule_handler.h"

namespace specloom::openapi_lint {
namespace {

using openapi::SchemaType;

constexpr const char* primitive = "Operation request or response body is not an object or array";

/// A body without a schema may be anything, and so is none that could be extended.
bool isDocument(const openapi::Schema* schema) {
    return schema != nullptr &&
           (schema->types().has(SchemaType::Object) || schema->types().has(SchemaType::Array));
}

class OperationDocumentNotPrimitiveHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::Operation& operation) override {
        if (isDisabled(operation))
            return;
        if (const openapi::RequestBody* body = operation.requestBody(); body != nullptr)
            check(body->content());
        for (const auto& entry : operation.responses())
            if (const auto* response = openapi::resolveTo<openapi::Response>(entry.value.get());
                response != nullptr)
                check(response->content());
    }

  private:
    void check(const openapi::NodeMap& content) const {
        for (const auto& entry : content) {
            const auto& mediaType = static_cast<const openapi::MediaType&>(*entry.value);
            if (!isDocument(mediaType.schema()))
                report(primitive, mediaType);
        }
    }
};

} // namespace

void OperationDocumentNotPrimitive::check(LintContext& context) {
    OperationDocumentNotPrimitiveHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
