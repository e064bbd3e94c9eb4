#include "openapi_lint/rule.h"

#include "openapi_lint/lint_context.h"

#include <utility> // std::move

namespace specloom::openapi_lint {

void Rule::configure(const jv::JV* /*options*/) {}
void Rule::check(LintContext& /*context*/) {}
void Rule::fix(LintContext& /*context*/) {}

void Rule::report(LintContext& context, std::string message, const openapi::Node& node) const {
    context.report(*this, std::move(message), node);
}

} // namespace specloom::openapi_lint
