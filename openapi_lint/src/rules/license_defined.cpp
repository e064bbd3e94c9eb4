#include "openapi_lint/rules/license_defined.h"

#include "openapi_lint/disabling.h"
#include "openapi_lint/lint_context.h"
#include "openapi_lint/spdx.h"

namespace specloom::openapi_lint {
namespace {

constexpr const char* licenseMissing = "License object is missing";
constexpr const char* nameEmpty = "License name is empty";
constexpr const char* termsMissing = "Both the license URL and identifier are missing or empty";
constexpr const char* identifierUnknown = "License identifier is not a valid SPDX identifier";

} // namespace

void LicenseDefined::check(LintContext& context) {
    const openapi::OpenAPI& root = context.root();
    const openapi::Info& info = root.info();
    const openapi::License* license = info.license();
    if (isDisabled(*this, license, &info, &root))
        return;
    if (license == nullptr) {
        report(context, licenseMissing, info);
        return;
    }
    if (license->name().empty())
        report(context, nameEmpty, *license);
    if (license->url().value_or("").empty() && license->identifier().value_or("").empty())
        report(context, termsMissing, *license);
    if (license->identifier() && !isSpdxIdentifier(*license->identifier()))
        report(context, identifierUnknown, *license);
}

} // namespace specloom::openapi_lint
