#include "source_edit/replacements.h"

#include <utility> // std::move

namespace specloom::source_edit {

void Replacements::put(Extent extent, std::string text) {
    const auto first = replacements_.lower_bound(extent.begin);
    auto last = first;
    while (last != replacements_.end() && last->first < extent.end && last->second.end <= extent.end)
        ++last;
    replacements_.erase(first, last);
    replacements_.insert_or_assign(extent.begin, Replacement{extent.end, std::move(text)});
}

std::optional<std::string> Replacements::slice(Extent extent) const {
    std::string result;
    constexpr std::size_t spare = 256; // for what comes in: growing would copy all of a large text
    result.reserve(extent.end - extent.begin + spare);
    std::size_t at = extent.begin;
    // What comes in at the end of the extent, between two bytes, is the extent's.
    for (auto place = replacements_.lower_bound(at);
         place != replacements_.end() && place->first <= extent.end &&
         (place->first < extent.end || place->second.end == extent.end);
         ++place) {
        if (place->first < at || place->second.end > extent.end)
            return std::nullopt;
        result.append(text_.substr(at, place->first - at)).append(place->second.text);
        at = place->second.end;
    }
    return result.append(text_.substr(at, extent.end - at));
}

std::vector<Change> Replacements::changes() const {
    std::vector<Change> changes;
    std::size_t at = 0;    // in the text
    std::size_t grown = 0; // in the new one
    for (const auto& [begin, replacement] : replacements_) {
        grown += begin - at;
        changes.push_back({{begin, replacement.end}, {grown, grown + replacement.text.size()}});
        grown += replacement.text.size();
        at = replacement.end;
    }
    return changes;
}

} // namespace specloom::source_edit
