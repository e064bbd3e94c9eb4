#pragma once

#include "openapi/node.h"

#include <algorithm> // std::ranges::stable_sort
#include <cstdint>   // INT32_MAX
#include <utility>   // std::pair
#include <vector>    // std::vector

namespace specloom::openapi_generator::doc_html {

/// The entries of a map in the order in which they stand in the document. Those without a place, such as
/// booleans that are schemas, are behind the others.
[[nodiscard]] inline std::vector<const openapi::NodeMap::Entry*>
inDocumentOrder(const openapi::NodeMap& map) {
    std::vector<const openapi::NodeMap::Entry*> entries;
    entries.reserve(map.size());
    for (const openapi::NodeMap::Entry& entry : map)
        entries.push_back(&entry);
    std::ranges::stable_sort(entries, {}, [](const openapi::NodeMap::Entry* entry) {
        const jv::JV* source = entry->value->source();
        const jv::Pos pos = source == nullptr ? jv::Pos{} : source->pos();
        return pos.isKnown() ? std::pair(pos.line, pos.column) : std::pair(INT32_MAX, INT32_MAX);
    });
    return entries;
}

} // namespace specloom::openapi_generator::doc_html
