#include "openapi_lint/rules/paths_unique.h"

#include "foundation/text_tables.h"
#include "openapi_lint/disabling.h"
#include "openapi_lint/lint_context.h"
#include "openapi_lint/texts.h"

#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_lint {
namespace {

constexpr const char* duplicatePath = "Duplicate path found";

/// Paths of one form are told apart by no request.
std::string formOf(std::string_view path) {
    return std::string(withoutTrailingSlash(withoutRepeatedSlashes(withoutTemplateNames(path))));
}

} // namespace

void PathsUnique::check(LintContext& context) {
    const openapi::OpenAPI& root = context.root();
    if (isDisabled(*this, &root))
        return;
    TextSet forms;
    for (const auto& entry : root.paths())
        if (!forms.insert(formOf(entry.name())).second)
            report(context, duplicatePath, *entry.value);
}

} // namespace specloom::openapi_lint
