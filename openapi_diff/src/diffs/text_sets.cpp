#include "openapi_diff/diffs/text_sets.h"

#include "foundation/keyed_hash.h"
#include "openapi_diff/diffs/list_pairing.h"

namespace specloom::openapi_diff {

std::vector<std::string_view> textsOf(const std::vector<openapi::Text>* texts) {
    std::vector<std::string_view> views;
    if (texts != nullptr)
        for (const openapi::Text& text : *texts)
            views.push_back(text.view());
    return views;
}

void diffTextSets(ConfigKey key, const openapi::Node* source, const openapi::Node* destination,
                  const std::vector<std::string_view>& before, const std::vector<std::string_view>& after,
                  DiffContext& context) {
    const auto textAt = [&](DocumentSide side, std::size_t index) {
        return side == DocumentSide::Source ? before[index] : after[index];
    };
    compareSets<KeyedHash>(before.size(), after.size(), textAt, [&](DocumentSide side, std::size_t index) {
        const auto position = static_cast<std::int64_t>(index);
        if (side == DocumentSide::Destination) {
            const auto scope = context.enterIndex(nullptr, destination, key, position);
            context.added(key, *destination, after[index]);
        } else {
            const auto scope = context.enterIndex(source, nullptr, key, position);
            context.removed(key, *source, before[index]);
        }
    });
}

} // namespace specloom::openapi_diff
