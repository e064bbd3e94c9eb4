#include "openapi_lint/rules/tags_sorted.h"

#include "openapi_lint/disabling.h"
#include "openapi_lint/lint_context.h"

#include <vector> // std::vector

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

constexpr const char* outOfOrder = "Tags are not sorted: {}";

} // namespace

void TagsSorted::check(LintContext& context) {
    const openapi::OpenAPI& root = context.root();
    if (isDisabled(*this, &root))
        return;
    std::string_view previous;
    for (const auto& tag : root.tags()) {
        if (tag->name() < previous)
            report(context, fmt::format(outOfOrder, tag->name()), *tag);
        previous = tag->name();
    }
}

void TagsSorted::fix(LintContext& context) {
    openapi::OpenAPI& root = context.root();
    if (isDisabled(*this, &root))
        return;
    root.sortTags([](const openapi::Tag& a, const openapi::Tag& b) { return a.name() < b.name(); });
    const jv::JV* list = root.source() == nullptr ? nullptr : root.source()->get("tags");
    if (list == nullptr)
        return;
    std::vector<const jv::JV*> sorted;
    for (const auto& tag : root.tags())
        sorted.push_back(tag->source());
    context.edits().arrangeElements(*list, sorted);
}

} // namespace specloom::openapi_lint
