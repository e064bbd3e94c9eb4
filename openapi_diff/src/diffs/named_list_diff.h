#pragma once

#include "openapi_diff/diffs/list_pairing.h"
#include "openapi_diff/diffs/node_diff.h"

#include <memory> // std::unique_ptr
#include <vector> // std::vector

namespace specloom::openapi_diff {

/// Compares the nodes of two lists, of which one may be null, each pair in a scope of its own. Nodes of which
/// `nameOf` gives the same belong together.
template <typename Diff, typename Hash, typename N, typename NameOf>
void diffNamedLists(ConfigKey key, const std::vector<std::unique_ptr<N>>* source,
                    const std::vector<std::unique_ptr<N>>* destination, NameOf nameOf, DiffContext& context) {
    const auto at = [&](DocumentSide side, std::size_t index) -> const N& {
        return *(*(side == DocumentSide::Source ? source : destination))[index];
    };
    const auto sizeOf = [](const auto* list) { return list == nullptr ? std::size_t{0} : list->size(); };
    pairLists<Hash>(
        sizeOf(source), sizeOf(destination),
        [&](DocumentSide side, std::size_t index) { return std::invoke(nameOf, at(side, index)); },
        [&](std::int64_t before, std::int64_t after) {
            const N* a = before < 0 ? nullptr : &at(DocumentSide::Source, static_cast<std::size_t>(before));
            const N* b =
                after < 0 ? nullptr : &at(DocumentSide::Destination, static_cast<std::size_t>(after));
            const auto scope = context.enterIndex(a, b, key, after < 0 ? before : after);
            Diff().diff(a, b, context);
        });
}

} // namespace specloom::openapi_diff
