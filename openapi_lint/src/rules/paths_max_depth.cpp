#include "openapi_lint/rules/paths_max_depth.h"

#include "openapi_lint/lint_context.h"
#include "openapi_lint/rule_options.h"

#include <algorithm>   // std::count
#include <cstddef>     // std::size_t
#include <string_view> // std::string_view

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

constexpr const char* tooDeep = "Path URL is too much nested ({})";

/// One more than the slashes of the path. A slash that is the only one counts when something follows it.
std::size_t depthOf(std::string_view path) {
    if (!path.empty() && path.find('/') == path.size() - 1)
        path.remove_suffix(1);
    return static_cast<std::size_t>(std::count(path.begin(), path.end(), '/')) + 1;
}

} // namespace

void PathsMaxDepth::configure(const jv::JV* options) {
    maximum_ = optionsMaximumForPaths(options, ruleId);
}

void PathsMaxDepth::check(LintContext& context) {
    for (const auto& entry : context.root().paths()) {
        const openapi::Node& item = *entry.value;
        if (!context.isDisabled(*this, item, item.resolve()) && maximum_.compare(depthOf(entry.name())) < 0)
            report(context, fmt::format(tooDeep, entry.name()), item);
    }
}

} // namespace specloom::openapi_lint
