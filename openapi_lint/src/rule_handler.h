#pragma once

#include "openapi/node_visit_handler.h"
#include "openapi_lint/disabling.h"
#include "openapi_lint/lint_context.h"
#include "openapi_lint/rule.h"

#include <string>  // std::string
#include <utility> // std::move

namespace specloom::openapi_lint {

/// What the handlers of rules share. One derives from it, overrides the hooks that it needs, and is sent
/// through the document by LintContext::walk():
///
///     class OperationIdDefinedHandler final : public RuleHandler {
///       public:
///         using RuleHandler::RuleHandler;
///         using RuleHandler::visit;
///         void visit(const openapi::Operation& operation) override {
///             if (isDisabled(operation))
///                 return;
///             ...
///             report("Operation ID is not defined", operation);
///         }
///     };
///
///     void OperationIdDefined::check(LintContext& context) {
///         OperationIdDefinedHandler handler(*this, context);
///         context.walk(handler);
///     }
class RuleHandler : public openapi::NodeVisitHandler {
  public:
    /// Both must outlive the handler.
    RuleHandler(const Rule& rule, LintContext& context) noexcept : rule_(rule), context_(context) {}

  protected:
    [[nodiscard]] LintContext& context() const noexcept { return context_; }
    [[nodiscard]] bool isDisabled(const openapi::Node& node) const {
        return context_.isDisabled(rule_, node);
    }
    void report(std::string message, const openapi::Node& node) const {
        context_.report(rule_, std::move(message), node);
    }

  private:
    const Rule& rule_;
    LintContext& context_;
};

} // namespace specloom::openapi_lint
