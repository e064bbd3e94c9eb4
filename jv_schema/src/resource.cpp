#include "jv_schema/resource.h"

#include "jv/jv_pointer.h"

#include <vector> // std::vector

namespace specloom::jv::schema {

std::string Place::pointer() const {
    std::vector<const Place*> way;
    for (const Place* place = this; place->schema != place->resource->root && place->parent != nullptr;
         place = place->parent)
        way.push_back(place);
    std::string text;
    for (std::size_t i = way.size(); i-- > 0;) {
        const Place& place = *way[i];
        if (!place.keyword.empty()) {
            text += '/';
            JVPointer::escapeToken(place.keyword, text);
        }
        if (place.hasKey) {
            text += '/';
            JVPointer::escapeToken(place.key, text);
        }
        if (place.index != noIndex)
            text += '/' + std::to_string(place.index);
    }
    return text;
}

std::string Place::location(std::string_view ofKeyword) const {
    std::string text = resource->uri + '#' + pointer();
    if (!ofKeyword.empty()) {
        text += '/';
        JVPointer::escapeToken(ofKeyword, text);
    }
    return text;
}

} // namespace specloom::jv::schema
