#include "openapi_lint/rules/tag_description_defined.h"

#include "openapi_lint/disabling.h"
#include "openapi_lint/lint_context.h"
#include "openapi_lint/rule_options.h"
#include "openapi_lint/texts.h"

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

constexpr const char* tagNotDescribed = "Tag '{}' has no meaningful description defined";

} // namespace

void TagDescriptionDefined::configure(const jv::JV* options) {
    minimumLength_ = optionsPositiveNumber(options, ruleId);
}

void TagDescriptionDefined::check(LintContext& context) {
    const openapi::OpenAPI& root = context.root();
    if (isDisabled(*this, &root))
        return;
    for (const auto& tag : root.tags())
        if (!isMeaningfulText(tag->description(), minimumLength_))
            report(context, fmt::format(tagNotDescribed, tag->name()), *tag);
}

} // namespace specloom::openapi_lint
