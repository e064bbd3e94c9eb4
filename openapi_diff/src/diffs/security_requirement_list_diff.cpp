#include "openapi_diff/diffs/security_requirement_list_diff.h"

#include "foundation/keyed_hash.h"
#include "openapi_diff/diffs/list_pairing.h"

#include <algorithm> // std::sort
#include <string>    // std::string

namespace specloom::openapi_diff {
namespace {

/// What a requirement says, as one text: the same for requirements that differ in order only.
std::string meaningOf(const openapi::SecurityRequirement& requirement) {
    const auto note = [](std::string& meaning, std::string_view text) {
        meaning += std::to_string(text.size());
        meaning += ':';
        meaning += text;
    };
    std::vector<std::string> schemes;
    for (const openapi::SecurityRequirement::Scheme& scheme : requirement.schemes()) {
        std::vector<std::string_view> scopes;
        for (const openapi::Text& scope : scheme.scopes)
            scopes.push_back(scope.view());
        std::sort(scopes.begin(), scopes.end());
        note(schemes.emplace_back(), scheme.name());
        for (const std::string_view scope : scopes)
            note(schemes.back(), scope);
    }
    std::sort(schemes.begin(), schemes.end());
    std::string meaning;
    for (const std::string& scheme : schemes)
        note(meaning, scheme);
    return meaning;
}

std::vector<std::string> meaningsOf(const SecurityRequirementListDiff::List* list) {
    std::vector<std::string> meanings;
    if (list != nullptr)
        for (const auto& requirement : *list)
            meanings.push_back(meaningOf(*requirement));
    return meanings;
}

} // namespace

void SecurityRequirementDiff::diff(const openapi::SecurityRequirement* source,
                                   const openapi::SecurityRequirement* destination,
                                   DiffContext& context) const {
    context.mark(source, destination);
    if (source != nullptr && destination != nullptr)
        return;
    const auto scope = context.enterIndex(source, destination, ConfigKey::SecurityRequirement, index_);
    if (destination != nullptr)
        context.added(ConfigKey::SecurityRequirement, *destination, true);
    else
        context.removed(ConfigKey::SecurityRequirement, *source, true);
}

void SecurityRequirementListDiff::diff(const List* source, const List* destination,
                                       DiffContext& context) const {
    const std::vector<std::string> before = meaningsOf(source);
    const std::vector<std::string> after = meaningsOf(destination);
    pairLists<KeyedHash>(
        before.size(), after.size(),
        [&](DocumentSide side, std::size_t index) {
            return std::string_view(side == DocumentSide::Source ? before[index] : after[index]);
        },
        [&](std::int64_t from, std::int64_t to) {
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
