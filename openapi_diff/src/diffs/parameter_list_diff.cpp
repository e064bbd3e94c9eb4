#include "openapi_diff/diffs/parameter_list_diff.h"

#include "foundation/unreachable.h"
#include "openapi_diff/diffs/list_pairing.h"
#include "openapi_diff/diffs/parameter_diff.h"

namespace specloom::openapi_diff {
namespace {

void diffAt(openapi::ParameterLocation location, const openapi::Node* source,
            const openapi::Node* destination, DiffContext& context) {
    using openapi::ParameterLocation;
    switch (location) {
    case ParameterLocation::Path:
        return diffPlace<PathParameterDiff>(source, destination, context);
    case ParameterLocation::Query:
        return diffPlace<QueryParameterDiff>(source, destination, context);
    case ParameterLocation::Header:
        return diffPlace<HeaderParameterDiff>(source, destination, context);
    case ParameterLocation::Cookie:
        return diffPlace<CookieParameterDiff>(source, destination, context);
    }
    SPECLOOM_UNREACHABLE("Unknown parameter location");
}

} // namespace

void ParameterListDiff::diff(const openapi::ParameterList* source, const openapi::ParameterList* destination,
                             DiffContext& context) const {
    const auto keyOf = [&](DocumentSide side, std::size_t index) {
        const openapi::Parameter* parameter =
            (side == DocumentSide::Source ? source : destination)->at(index);
        return openapi::ParameterKey{parameter->location(), parameter->name()};
    };
    const auto nodeAt = [](const openapi::ParameterList* list, std::int64_t index) {
        return index < 0 ? nullptr : list->nodes()[static_cast<std::size_t>(index)].get();
    };
    const auto sizeOf = [](const openapi::ParameterList* list) { return list == nullptr ? 0 : list->size(); };
    pairLists<openapi::ParameterKeyHash>(
        sizeOf(source), sizeOf(destination), keyOf, [&](std::int64_t before, std::int64_t after) {
            const openapi::Node* a = nodeAt(source, before);
            const openapi::Node* b = nodeAt(destination, after);
            const auto scope = context.enterIndex(a, b, key_, after < 0 ? before : after);
            const auto key = after < 0 ? keyOf(DocumentSide::Source, static_cast<std::size_t>(before))
                                       : keyOf(DocumentSide::Destination, static_cast<std::size_t>(after));
            diffAt(key.location, a, b, context);
        });
}

} // namespace specloom::openapi_diff
