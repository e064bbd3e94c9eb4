#include "openapi_diff/diffs/composed_schemas_diff.h"

#include "foundation/keyed_hash.h"
#include "openapi_diff/diffs/list_pairing.h"
#include "openapi_diff/diffs/reference_diff.h"
#include "openapi_diff/diffs/schema_diff.h"

#include <algorithm> // std::ranges::equal
#include <vector>    // std::vector

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

/// The members of an object without an `additionalProperties` that allows anything, as it is without one.
std::vector<jv::Member> effectiveMembersOf(const jv::JV& object) {
    std::vector<jv::Member> members;
    for (const jv::Member member : object.members()) {
        const bool allowsAll = (member.value->isBoolean() && member.value->boolean()) ||
                               (member.value->isObject() && member.value->size() == 0);
        if (member.key != "additionalProperties" || !allowsAll)
            members.push_back(member);
    }
    return members;
}

/// A schema as the key of a pairing; equal where the effective members are.
struct SchemaKey {
    explicit SchemaKey(const jv::JV& of) : members(effectiveMembersOf(of)) {
        KeyedHasher hasher;
        for (const jv::Member& member : members) {
            hasher.add(member.key);
            hasher.add(jv::hashOfValue(*member.value));
        }
        hash = hasher.finish();
    }

    std::vector<jv::Member> members;
    std::uint64_t hash;
    friend bool operator==(const SchemaKey& a, const SchemaKey& b) {
        return a.hash == b.hash &&
               std::ranges::equal(a.members, b.members, [](const jv::Member& one, const jv::Member& other) {
                   return one.key == other.key && jv::equalValues(*one.value, *other.value);
               });
    }
};
struct SchemaKeyHash {
    [[nodiscard]] std::size_t operator()(const SchemaKey& key) const noexcept { return key.hash; }
};

std::optional<SchemaKey> schemaOf(const Node& element) {
    if (asReference(&element) != nullptr || element.source() == nullptr || !element.source()->isObject())
        return std::nullopt;
    return SchemaKey(*element.source());
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
    pairing.pairBy<SchemaKeyHash>(
        [&](DocumentSide side, std::size_t index) { return schemaOf(at(side, index)); });
    pairing.pairInOrder();
    pairing.visit(diffPair);
}

} // namespace specloom::openapi_diff
