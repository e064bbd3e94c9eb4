#pragma once

#include "openapi/node_pool.h"
#include "openapi/text.h"

#include <algorithm>   // std::lower_bound
#include <cstddef>     // std::size_t, std::ptrdiff_t
#include <string_view> // std::string_view
#include <utility>     // std::move, std::exchange
#include <vector>      // std::vector

namespace specloom::openapi {

/// Values by name, in byte-wise order of the names. One flat sequence, because the reader brings the names in
/// order and all others only look up and walk.
template <typename V>
class NameMap {
  public:
    struct Entry {
        Text key;
        V value;
        [[nodiscard]] std::string_view name() const noexcept { return key.view(); }
    };
    using Entries = std::vector<Entry, PoolAllocator<Entry>>;
    using const_iterator = typename Entries::const_iterator;

    [[nodiscard]] const_iterator begin() const noexcept { return entries_.begin(); }
    [[nodiscard]] const_iterator end() const noexcept { return entries_.end(); }
    [[nodiscard]] std::size_t size() const noexcept { return entries_.size(); }
    [[nodiscard]] bool empty() const noexcept { return entries_.empty(); }
    void reserve(std::size_t count) { entries_.reserve(count); }

    /// Null when there is no such name; good until a name is added or removed.
    [[nodiscard]] const V* find(std::string_view name) const noexcept {
        const std::size_t index = position(name);
        return index < size() && entries_[index].name() == name ? &entries_[index].value : nullptr;
    }
    [[nodiscard]] V* find(std::string_view name) noexcept {
        return const_cast<V*>(static_cast<const NameMap*>(this)->find(name));
    }

    /// Adds a value under a name that is not there yet.
    V& add(Text name, V value) {
        const std::size_t index = position(name.view());
        return entries_.insert(at(index), Entry{std::move(name), std::move(value)})->value;
    }

    /// Takes out the value of a name that is there.
    V extract(std::string_view name) {
        const auto entry = at(position(name));
        V value = std::move(entry->value);
        entries_.erase(entry);
        return value;
    }

    /// Takes out all entries, in their order.
    [[nodiscard]] Entries extractAll() noexcept { return std::exchange(entries_, {}); }

  private:
    [[nodiscard]] std::size_t position(std::string_view name) const noexcept {
        if (entries_.empty() || entries_.back().name() < name)
            return entries_.size();
        const auto found = std::lower_bound(
            entries_.begin(), entries_.end(), name,
            [](const Entry& entry, std::string_view wanted) { return entry.name() < wanted; });
        return static_cast<std::size_t>(found - entries_.begin());
    }
    [[nodiscard]] auto at(std::size_t index) { return entries_.begin() + static_cast<std::ptrdiff_t>(index); }

    Entries entries_;
};

} // namespace specloom::openapi
