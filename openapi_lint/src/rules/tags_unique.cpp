#include "openapi_lint/rules/tags_unique.h"

#include "foundation/text_tables.h"
#include "openapi_lint/disabling.h"
#include "openapi_lint/lint_context.h"

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

constexpr const char* nameRepeated = "Tag name is not unique ({})";

} // namespace

void TagsUnique::check(LintContext& context) {
    const openapi::OpenAPI& root = context.root();
    if (isDisabled(*this, &root))
        return;
    TextViewSet names;
    for (const auto& tag : root.tags())
        if (!names.insert(tag->name()).second)
            report(context, fmt::format(nameRepeated, tag->name()), *tag);
}

} // namespace specloom::openapi_lint
