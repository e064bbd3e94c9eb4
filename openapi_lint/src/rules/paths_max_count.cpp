#include "openapi_lint/rules/paths_max_count.h"

#include "openapi_lint/disabling.h"
#include "openapi_lint/lint_context.h"
#include "openapi_lint/rule_options.h"

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

constexpr const char* tooMany = "Too many paths found ({}), maximum number is {}";

} // namespace

void PathsMaxCount::configure(const jv::JV* options) {
    maximum_ = optionsMaximumForPaths(options, ruleId);
}

void PathsMaxCount::check(LintContext& context) {
    const openapi::Paths& paths = context.root().paths();
    if (!isDisabled(*this, &paths) && maximum_.compare(paths.size()) < 0)
        report(context, fmt::format(tooMany, paths.size(), maximum_.toString()), paths);
}

} // namespace specloom::openapi_lint
