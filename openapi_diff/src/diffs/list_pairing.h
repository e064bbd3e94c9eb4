#pragma once

#include "jv/equal_values.h"
#include "openapi_diff/change.h"

#include <cstddef>       // std::size_t
#include <cstdint>       // std::int64_t
#include <optional>      // std::optional
#include <unordered_map> // std::unordered_map
#include <unordered_set> // std::unordered_set
#include <vector>        // std::vector

namespace specloom::openapi_diff {

/// Finds out which elements of two lists belong together. Keys decide, those of the first call before those
/// of the next; of elements with one key the first of one list goes with the first of the other, and so on.
/// All of it takes time in proportion to the lists.
class ListPairing {
  public:
    ListPairing(std::size_t source, std::size_t destination)
        : partnersOfSource_(source, none), partnersOfDestination_(destination, none) {}

    /// Pairs the elements of equal keys that have no partner yet. keyOf(side, index) is an optional with the
    /// key of an element, empty for one that has no part in this.
    template <typename Hash, typename KeyOf>
    void pairBy(KeyOf keyOf) {
        using Key = typename decltype(keyOf(DocumentSide::Source, std::size_t{0}))::value_type;
        constexpr auto end = static_cast<std::size_t>(-1);
        std::unordered_map<Key, std::size_t, Hash> first;
        std::vector<std::size_t> next(partnersOfSource_.size(), end); // of the same key
        for (std::size_t i = partnersOfSource_.size(); i-- > 0;) {
            if (partnersOfSource_[i] != none)
                continue;
            if (const auto key = keyOf(DocumentSide::Source, i); key) {
                const auto [entry, isNew] = first.try_emplace(*key, i);
                if (!isNew) {
                    next[i] = entry->second;
                    entry->second = i;
                }
            }
        }
        for (std::size_t i = 0; i < partnersOfDestination_.size() && !first.empty(); ++i) {
            if (partnersOfDestination_[i] != none)
                continue;
            const auto key = keyOf(DocumentSide::Destination, i);
            const auto entry = key ? first.find(*key) : first.end();
            if (entry == first.end())
                continue;
            pair(entry->second, i);
            if (next[entry->second] == end)
                first.erase(entry);
            else
                entry->second = next[entry->second];
        }
    }

    /// Pairs what has no partner yet in the order of the lists.
    void pairInOrder() {
        std::size_t source = 0;
        for (std::size_t i = 0; i < partnersOfDestination_.size(); ++i) {
            while (source < partnersOfSource_.size() && partnersOfSource_[source] != none)
                ++source;
            if (source == partnersOfSource_.size())
                return;
            if (partnersOfDestination_[i] == none)
                pair(source, i);
        }
    }

    /// Calls visit(position in the source, position in the destination), -1 for none: first for the elements
    /// that were added, then for those that were removed, then for the pairs, each in the order of its list.
    template <typename Visit>
    void visit(Visit visitPair) const {
        for (std::size_t i = 0; i < partnersOfDestination_.size(); ++i)
            if (partnersOfDestination_[i] == none)
                visitPair(none, static_cast<std::int64_t>(i));
        for (std::size_t i = 0; i < partnersOfSource_.size(); ++i)
            if (partnersOfSource_[i] == none)
                visitPair(static_cast<std::int64_t>(i), none);
        for (std::size_t i = 0; i < partnersOfDestination_.size(); ++i)
            if (partnersOfDestination_[i] != none)
                visitPair(partnersOfDestination_[i], static_cast<std::int64_t>(i));
    }

  private:
    static constexpr std::int64_t none = -1;

    void pair(std::size_t source, std::size_t destination) {
        partnersOfSource_[source] = static_cast<std::int64_t>(destination);
        partnersOfDestination_[destination] = static_cast<std::int64_t>(source);
    }

    std::vector<std::int64_t> partnersOfSource_;
    std::vector<std::int64_t> partnersOfDestination_;
};

/// Whether same(position) holds for each position of two lists, which then belong together as they stand:
/// nearly all lists, without a table.
template <typename Same>
[[nodiscard]] bool agreeInOrder(std::size_t source, std::size_t destination, Same same) {
    if (source != destination)
        return false;
    for (std::size_t i = 0; i < source; ++i)
        if (!same(i))
            return false;
    return true;
}

/// Visits two lists as ListPairing::visit(), whose elements belong together when they have one key.
/// keyOf(side, index) gives it.
template <typename Hash, typename KeyOf, typename Visit>
void pairLists(std::size_t source, std::size_t destination, KeyOf keyOf, Visit visitPair) {
    const auto same = [&](std::size_t i) {
        return keyOf(DocumentSide::Source, i) == keyOf(DocumentSide::Destination, i);
    };
    if (agreeInOrder(source, destination, same)) {
        for (std::size_t i = 0; i < source; ++i)
            visitPair(static_cast<std::int64_t>(i), static_cast<std::int64_t>(i));
        return;
    }
    ListPairing pairing(source, destination);
    pairing.pairBy<Hash>(
        [&](DocumentSide side, std::size_t index) { return std::optional(keyOf(side, index)); });
    pairing.visit(visitPair);
}

/// Compares two lists as sets: calls tell(side, index) for each key that the destination has alone, and then
/// for each that the source has alone, where it stands first.
template <typename Hash, typename KeyOf, typename Tell>
void compareSets(std::size_t source, std::size_t destination, KeyOf keyOf, Tell tell) {
    const auto same = [&](std::size_t i) {
        return keyOf(DocumentSide::Source, i) == keyOf(DocumentSide::Destination, i);
    };
    if (agreeInOrder(source, destination, same))
        return;
    using Key = decltype(keyOf(DocumentSide::Source, std::size_t{0}));
    std::unordered_set<Key, Hash> before;
    for (std::size_t i = 0; i < source; ++i)
        before.insert(keyOf(DocumentSide::Source, i));
    std::unordered_set<Key, Hash> after;
    for (std::size_t i = 0; i < destination; ++i) {
        const Key key = keyOf(DocumentSide::Destination, i);
        if (after.insert(key).second && !before.contains(key))
            tell(DocumentSide::Destination, i);
    }
    for (std::size_t i = 0; i < source; ++i) {
        const Key key = keyOf(DocumentSide::Source, i);
        if (!after.contains(key) && before.erase(key) != 0)
            tell(DocumentSide::Source, i);
    }
}

/// A value as the key of a pairing; equal where the values are. The hash is taken once.
struct ValueKey {
    explicit ValueKey(const jv::JV& of) : value(&of), hash(jv::hashOfValue(of)) {}

    const jv::JV* value;
    std::uint64_t hash;
    friend bool operator==(const ValueKey& a, const ValueKey& b) {
        return a.hash == b.hash && jv::equalValues(*a.value, *b.value);
    }
};
struct ValueKeyHash {
    [[nodiscard]] std::size_t operator()(const ValueKey& key) const noexcept { return key.hash; }
};

} // namespace specloom::openapi_diff
