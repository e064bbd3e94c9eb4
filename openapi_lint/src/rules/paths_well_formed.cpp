#include "openapi_lint/rules/paths_well_formed.h"

#include "foundation/strings.h"
#include "openapi_lint/lint_context.h"
#include "openapi_lint/path_renaming.h"
#include "openapi_lint/texts.h"

#include <string>      // std::string
#include <string_view> // std::string_view

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

constexpr const char* notWellFormed = "Path is not well-formed {}";

bool isWellFormed(std::string_view path) {
    const std::string nameless = withoutTemplateNames(path);
    const std::string rooted = withoutRepeatedSlashes("/" + nameless);
    return toLowerCase(withoutTrailingSlash(rooted)) == nameless;
}

std::string fixed(std::string_view path) {
    std::string result = toLowerCase(withoutRepeatedSlashes(path));
    return result.starts_with('/') ? result : "/" + result;
}

/// A reference stands in for a path item, but only the item itself can say that the rule is disabled.
bool isDisabledOn(const LintContext& context, const Rule& rule, const openapi::Node& entry) {
    return context.isDisabled(rule, entry, entry.resolve());
}

} // namespace

void PathsWellFormed::check(LintContext& context) {
    for (const auto& entry : context.root().paths())
        if (!isDisabledOn(context, *this, *entry.value) && !isWellFormed(entry.name()))
            report(context, fmt::format(notWellFormed, entry.name()), *entry.value);
}

void PathsWellFormed::fix(LintContext& context) {
    renamePaths(context, [&](std::string_view url, const openapi::Node& entry) {
        return isDisabledOn(context, *this, entry) ? std::string(url) : fixed(url);
    });
}

} // namespace specloom::openapi_lint
