#include "openapi_diff/diffs/composed_schemas_diff.h"

#include "foundation/keyed_hash.h"
#include "openapi_diff/diffs/list_pairing.h"
#include "openapi_diff/diffs/reference_diff.h"
#include "openapi_diff/diffs/schema_diff.h"

namespace specloom::openapi_diff {
namespace {

using openapi::Node;
using Name = std::optional<std::string_view>;

Name componentNameOf(const Node& element) {
    const openapi::Reference* reference = asReference(&element);
    return reference == nullptr ? std::nullopt : Name(targetName(*reference));
}

Name titleOf(const Node& element) {
    return asReference(&element) != nullptr ? std::nullopt
                                            : static_cast<const openapi::Schema&>(element).title();
}

std::optional<ValueKey> valueOf(const Node& element) {
    if (asReference(&element) != nullptr || element.source() == nullptr)
        return std::nullopt;
    return ValueKey(*element.source());
}

/// Whether the first rule that applies to both elements takes them for the same.
bool belongTogether(const Node& source, const Node& destination) {
    if (const Name name = componentNameOf(source), other = componentNameOf(destination); name || other)
        return name == other;
    if (const Name title = titleOf(source), other = titleOf(destination); title || other)
        return title == other;
    return source.source() != nullptr && destination.source() != nullptr &&
           source.source()->equals(*destination.source());
}

} // namespace

void diffComposedSchemas(ConfigKey key, const openapi::NodeList* source, const openapi::NodeList* destination,
                         DiffContext& context) {
    const auto at = [&](DocumentSide side, std::size_t index) -> const Node& {
        return *(*(side == DocumentSide::Source ? source : destination))[index];
    };
    const auto diffPair = [&](std::int64_t from, std::int64_t to) {
        const Node* a = from < 0 ? nullptr : &at(DocumentSide::Source, static_cast<std::size_t>(from));
        const Node* b = to < 0 ? nullptr : &at(DocumentSide::Destination, static_cast<std::size_t>(to));
        const auto scope = context.enterIndex(a, b, key, to < 0 ? from : to);
        diffPlace<SchemaDiff>(a, b, context);
    };
    const std::size_t before = source == nullptr ? 0 : source->size();
    const std::size_t after = destination == nullptr ? 0 : destination->size();
    const auto same = [&](std::size_t i) {
        return belongTogether(at(DocumentSide::Source, i), at(DocumentSide::Destination, i));
    };
    if ((before == 1 && after == 1) || agreeInOrder(before, after, same)) {
        for (std::size_t i = 0; i < after; ++i)
            diffPair(static_cast<std::int64_t>(i), static_cast<std::int64_t>(i));
        return;
    }
    ListPairing pairing(before, after);
    pairing.pairBy<KeyedHash>(
        [&](DocumentSide side, std::size_t index) { return componentNameOf(at(side, index)); });
    pairing.pairBy<KeyedHash>([&](DocumentSide side, std::size_t index) { return titleOf(at(side, index)); });
    pairing.pairBy<ValueKeyHash>(
        [&](DocumentSide side, std::size_t index) { return valueOf(at(side, index)); });
    pairing.pairInOrder();
    pairing.visit(diffPair);
}

} // namespace specloom::openapi_diff
