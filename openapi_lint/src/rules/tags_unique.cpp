#include "openapi_lint/rules/tags_unique.h"

#include <unordered_set> // std::unordered_set

#include <fmt/format.h>

#include "openapi_lint/disabling.h"
#include "openapi_lint/lint_context.h"

namespace specloom::openapi_lint {
namespace {

constexpr const char* nameRepeated = "Tag name is not unique ({})";

} // namespace

void TagsUnique::check(LintContext& context) {
    const openapi::OpenAPI& root = context.root();
    if (isDisabled(*this, &root))
        return;
    std::unordered_set<std::string_view> names;
    for (const auto& tag : root.tags())
        if (!names.insert(tag->name()).second)
            report(context, fmt::format(nameRepeated, tag->name()), *tag);
}

} // namespace specloom::openapi_lint
