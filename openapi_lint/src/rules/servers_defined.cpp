#include "openapi_lint/rules/servers_defined.h"

#include "openapi_lint/disabling.h"
#include "openapi_lint/lint_context.h"

namespace specloom::openapi_lint {
namespace {

constexpr const char* serversMissing = "No servers defined";

} // namespace

void ServersDefined::check(LintContext& context) {
    const openapi::OpenAPI& root = context.root();
    if (!isDisabled(*this, &root) && root.servers().empty())
        report(context, serversMissing, root);
}

} // namespace specloom::openapi_lint
