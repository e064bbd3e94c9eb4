#pragma once

#include "openapi/named_nodes.h"
#include "openapi/reference.h"
#include "openapi_diff/diff_context.h"

#include <algorithm>   // std::equal
#include <functional>  // std::invoke
#include <string_view> // std::string_view
#include <type_traits> // std::is_pointer_v

namespace specloom::openapi_diff {

/// Compares two nodes of one class. A member of the family holds no state.
///
/// Each has an operation `diff(source, destination, context)`, which begins with mark(), takes the fields in
/// the order of their keys, and ends with the extensions. One of the nodes may be null: its fields then count
/// as removed or added. It works in the scope that the caller opened. `NodeClass` is the class of the nodes.
class NodeDiff {
  public:
    NodeDiff() = default;
    NodeDiff(const NodeDiff&) = delete;
    NodeDiff& operator=(const NodeDiff&) = delete;
    virtual ~NodeDiff() = default;
};

/// Tells the extensions that were added, removed and modified, in this order. One node may be null.
void diffExtensions(const openapi::Node* source, const openapi::Node* destination, DiffContext& context);

/// Compares two places of which at least one holds a reference, or one is null and the other holds one, in
/// the scope that the caller opened: marks it, tells what the references themselves say, and lets count what
/// differs between the objects behind them.
void diffReferences(const openapi::Node* source, const openapi::Node* destination, DiffContext& context);

/// Compares what stands in two places, an object or a reference, in the scope that the caller opened. One may
/// be null.
template <typename Diff>
void diffPlace(const openapi::Node* source, const openapi::Node* destination, DiffContext& context) {
    using openapi::NodeType;
    if ((source != nullptr && source->type() == NodeType::Reference) ||
        (destination != nullptr && destination->type() == NodeType::Reference))
        return diffReferences(source, destination, context);
    using N = typename Diff::NodeClass;
    Diff().diff(static_cast<const N*>(source), static_cast<const N*>(destination), context);
}

/// Compares a field that holds an object or a reference, in a scope of its own. Nothing when both are null.
template <typename Diff>
void diffField(ConfigKey key, const openapi::Node* source, const openapi::Node* destination,
               DiffContext& context) {
    if (source == nullptr && destination == nullptr)
        return;
    const auto scope = context.enter(source, destination, key);
    diffPlace<Diff>(source, destination, context);
}

/// What `get` (a getter of N, or a function of one) returns, as a pointer; null for a null node.
template <typename N, typename Get>
[[nodiscard]] auto childOf(const N* node, Get get) {
    using Result = std::invoke_result_t<Get, const N&>;
    if constexpr (std::is_pointer_v<Result>) {
        return node == nullptr ? Result{} : std::invoke(get, *node);
    } else {
        static_assert(std::is_lvalue_reference_v<Result>, "a part of the node");
        return node == nullptr ? nullptr : &std::invoke(get, *node);
    }
}

/// The same for two nodes of which one may be null.
template <typename Diff, typename N, typename Get>
void diffField(ConfigKey key, const N* source, const N* destination, DiffContext& context, Get get) {
    diffField<Diff>(key, childOf(source, get), childOf(destination, get), context);
}

/// Calls visit(name, value in the source or null, value in the destination or null) for the names of two maps
/// in their order: first those that were added, then those that were removed, then those in both. A map may
/// be null.
template <typename Map, typename Visit>
void walkMaps(const Map* source, const Map* destination, Visit visit) {
    static const Map none{};
    const Map& before = source == nullptr ? none : *source;
    const Map& after = destination == nullptr ? none : *destination;
    const auto sameName = [](const auto& a, const auto& b) { return a.name() == b.name(); };
    if (std::equal(before.begin(), before.end(), after.begin(), after.end(), sameName)) {
        auto entry = before.begin();
        for (const auto& other : after)
            visit(other.name(), &(entry++)->value, &other.value);
        return;
    }
    using Value = decltype(before.begin()->value);
    const Value* nothing = nullptr;
    const auto walkMissing = [](const Map& map, const Map& others, auto tell) {
        auto other = others.begin();
        for (const auto& entry : map) {
            while (other != others.end() && other->name() < entry.name())
                ++other;
            tell(entry, other != others.end() && other->name() == entry.name() ? &other->value : nullptr);
        }
    };
    walkMissing(after, before, [&](const auto& entry, const Value* other) {
        if (other == nullptr)
            visit(entry.name(), nothing, &entry.value);
    });
    walkMissing(before, after, [&](const auto& entry, const Value* other) {
        if (other == nullptr)
            visit(entry.name(), &entry.value, nothing);
    });
    walkMissing(after, before, [&](const auto& entry, const Value* other) {
        if (other != nullptr)
            visit(entry.name(), other, &entry.value);
    });
}

/// Compares two maps of objects and references, each entry in a scope of its own.
template <typename Diff, typename Map>
void diffMaps(ConfigKey key, const Map* source, const Map* destination, DiffContext& context) {
    walkMaps(
        source, destination,
        [&](std::string_view name, const openapi::NodePointer* before, const openapi::NodePointer* after) {
            const openapi::Node* a = before == nullptr ? nullptr : before->get();
            const openapi::Node* b = after == nullptr ? nullptr : after->get();
            const auto scope = context.enterKey(a, b, key, name);
            diffPlace<Diff>(a, b, context);
        });
}
template <typename Diff, typename N, typename Get>
void diffMaps(ConfigKey key, const N* source, const N* destination, DiffContext& context, Get get) {
    diffMaps<Diff>(key, childOf(source, get), childOf(destination, get), context);
}

/// Compares two maps of plain texts or values: one change for each name that was added, removed or modified.
template <typename N, typename Get>
void diffPlainMaps(ConfigKey key, const N* source, const N* destination, DiffContext& context, Get get) {
    walkMaps(childOf(source, get), childOf(destination, get),
             [&]<typename V>(std::string_view name, const V* before, const V* after) {
                 const auto scope = context.enterKey(before == nullptr ? nullptr : source,
                                                     after == nullptr ? nullptr : destination, key, name);
                 const auto plain = [](const V& value) {
                     if constexpr (std::same_as<V, openapi::Text>)
                         return value.view();
                     else
                         return value.get();
                 };
                 if (before == nullptr)
                     context.added(key, *destination, plain(*after));
                 else if (after == nullptr)
                     context.removed(key, *source, plain(*before));
                 else
                     context.compare(key, *source, *destination, plain(*before), plain(*after));
             });
}

} // namespace specloom::openapi_diff
