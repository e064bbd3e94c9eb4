#include "openapi_lint/rules/operation_id_unique.h"

#include "foundation/text_tables.h"
#include "openapi/operation.h"
#include "openapi_lint/rule_handler.h"

#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_lint {
namespace {

constexpr const char* notUnique = "Operation ID is not unique ";

class OperationIdUniqueHandler final : public RuleHandler {
  public:
    using RuleHandler::RuleHandler;
    using RuleHandler::visit;
    void visit(const openapi::Operation& operation) override {
        const std::string_view id = operation.operationId().value_or("");
        if (id.empty())
            return;
        // Also a disabled operation takes its id: whoever uses it after it is to blame.
        const bool isNew = ids_.insert(id).second;
        if (!isNew && !isDisabled(operation))
            report(notUnique + std::string(id), operation);
    }

  private:
    TextViewSet ids_;
};

} // namespace

void OperationIdUnique::check(LintContext& context) {
    OperationIdUniqueHandler handler(*this, context);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
