#include "openapi_lint/rules/info_defined.h"

#include "openapi_lint/disabling.h"
#include "openapi_lint/lint_context.h"

namespace specloom::openapi_lint {
namespace {

constexpr const char* summaryMissing = "Info summary is missing or empty";
constexpr const char* infoNotDescribed = "Info description is missing or empty";
constexpr const char* versionEmpty = "Info version is empty";

} // namespace

void InfoDefined::check(LintContext& context) {
    const openapi::OpenAPI& root = context.root();
    const openapi::Info& info = root.info();
    if (isDisabled(*this, &info, &root))
        return;
    if (info.summary().value_or("").empty())
        report(context, summaryMissing, info);
    if (info.description().value_or("").empty())
        report(context, infoNotDescribed, info);
    if (info.version().empty())
        report(context, versionEmpty, info);
}

} // namespace specloom::openapi_lint
