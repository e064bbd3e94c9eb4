#include "openapi_diff/diffs/security_requirement_list_diff.h"

#include "foundation/keyed_hash.h"
#include "openapi_diff/diffs/list_pairing.h"

#include <algorithm>   // std::sort
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_diff {
namespace {

/// With its length before it, so that texts in a row are told apart.
void appendCounted(std::string& texts, std::string_view text) {
    texts += std::to_string(text.size());
    texts += ':';
    texts += text;
}

/// What a requirement says, as one text: the same for requirements that differ in order only.
std::string meaningOf(const openapi::SecurityRequirement& requirement) {
    std::vector<std::string> schemes;
    for (const openapi::SecurityRequirement::Scheme& scheme : requirement.schemes()) {
        std::vector<std::string_view> scopes;
        for (const openapi::Text& scope : scheme.scopes)
            scopes.push_back(scope.view());
        std::sort(scopes.begin(), scopes.end());
        appendCounted(schemes.emplace_back(), scheme.name());
        for (const std::string_view scope : scopes)
            appendCounted(schemes.back(), scope);
    }
    std::sort(schemes.begin(), schemes.end());
    std::string meaning;
    for (const std::string& scheme : schemes)
        appendCounted(meaning, scheme);
    return meaning;
}

/// The schemes of a requirement as one text, the same in any order.
std::string schemesOf(const openapi::SecurityRequirement& requirement) {
    std::vector<std::string_view> names;
    for (const openapi::SecurityRequirement::Scheme& scheme : requirement.schemes())
        names.push_back(scheme.name());
    std::sort(names.begin(), names.end());
    std::string schemes;
    for (const std::string_view name : names)
        appendCounted(schemes, name);
    return schemes;
}

using TextOf = std::string (*)(const openapi::SecurityRequirement&);

std::vector<std::string> requirementTexts(const SecurityRequirementListDiff::List* list, TextOf textOf) {
    std::vector<std::string> texts;
    if (list != nullptr)
        for (const auto& requirement : *list)
            texts.push_back(textOf(*requirement));
    return texts;
}

} // namespace

void SecurityRequirementDiff::diff(const openapi::SecurityRequirement* source,
                                   const openapi::SecurityRequirement* destination,
                                   DiffContext& context) const {
    context.mark(source, destination);
    const auto textOf = [](const openapi::SecurityRequirement* requirement) {
        return requirement == nullptr ? std::string() : meaningOf(*requirement);
    };
    const std::string before = textOf(source);
    const std::string after = textOf(destination);
    if (source != nullptr && destination != nullptr && before == after)
        return;
    const auto scope = context.enterIndex(source, destination, ConfigKey::SecurityRequirement, index_);
    if (source == nullptr)
        context.added(ConfigKey::SecurityRequirement, *destination, true);
    else if (destination == nullptr)
        context.removed(ConfigKey::SecurityRequirement, *source, true);
    else
        context.compare(ConfigKey::SecurityRequirement, *source, *destination, before, after);
}

void SecurityRequirementListDiff::diff(const List* source, const List* destination,
                                       DiffContext& context) const {
    const std::vector<std::string> before = requirementTexts(source, meaningOf);
    const std::vector<std::string> after = requirementTexts(destination, meaningOf);
    ListPairing pairing(before.size(), after.size());
    const auto pairBy = [&](const std::vector<std::string>& ofSource,
                            const std::vector<std::string>& ofDestination) {
        pairing.pairBy<KeyedHash>([&](DocumentSide side, std::size_t index) {
            return std::optional<std::string_view>(
                (side == DocumentSide::Source ? ofSource : ofDestination)[index]);
        });
    };
    pairBy(before, after);
    pairBy(requirementTexts(source, schemesOf), requirementTexts(destination, schemesOf));
    pairing.visit([&](std::int64_t from, std::int64_t to) {
        const openapi::SecurityRequirement* a =
            from < 0 ? nullptr : (*source)[static_cast<std::size_t>(from)].get();
        const openapi::SecurityRequirement* b =
            to < 0 ? nullptr : (*destination)[static_cast<std::size_t>(to)].get();
        const std::int64_t index = to < 0 ? from : to;
        const auto scope = context.enterIndex(a, b, key_, index);
        SecurityRequirementDiff(index).diff(a, b, context);
    });
}

} // namespace specloom::openapi_diff
