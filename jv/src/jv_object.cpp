// Objects. The entries of an object stand in one block, in source order; behind them lies room for a
// permutation that puts them into byte-wise order of their keys, filled when it is first needed. Its numbers
// take one byte each up to 256 entries. A block is either part of a document's arena, exactly as it was read,
// or the object's own with an EditHeader before it.

#include "jv/jv_object.h"

#include "jv/key_pool.h"

#include <algorithm> // std::fill, std::is_sorted, std::max, std::sort
#include <bit>       // std::bit_ceil
#include <cstdlib>   // std::free, std::malloc
#include <cstring>   // std::memcpy
#include <memory>    // std::make_unique
#include <new>       // std::bad_alloc, placement new
#include <stdexcept> // std::length_error
#include <utility>   // std::as_const

namespace specloom::jv {

namespace {

[[nodiscard]] std::size_t tableIndex(const Key* key) noexcept {
    return static_cast<std::size_t>((reinterpret_cast<std::uintptr_t>(key) >> 3) * 0x9e3779b97f4a7c15 >> 32);
}

void enterSlot(std::vector<std::uint32_t>& table, const Key* key, std::uint32_t slot) noexcept {
    const std::size_t mask = table.size() - 1;
    std::size_t index = tableIndex(key) & mask;
    while (table[index] != noSlot)
        index = (index + 1) & mask;
    table[index] = slot;
}

/// Fills `permutation` with the slots that have a value and sorts them by key.
template <typename Slot, typename Entry>
void sortSlots(Slot* permutation, const Entry* entries, std::uint32_t count) {
    Slot* end = permutation;
    for (std::uint32_t slot = 0; slot < count; ++slot) {
        if (entries[slot].value != nullptr)
            *end++ = static_cast<Slot>(slot);
    }
    std::sort(permutation, end, [&](Slot a, Slot b) { return keyLess(entries[a].key, entries[b].key); });
}

} // namespace

std::size_t JV::permutationBytes(std::size_t capacity) noexcept {
    if (capacity < 2)
        return 0;
    return capacity <= narrowLimit ? capacity : capacity * sizeof(std::uint32_t);
}

JV::EditHeader& JV::header() const noexcept {
    return reinterpret_cast<EditHeader*>(payload_.object.entries)[-1];
}

std::uint32_t JV::listedCount() const noexcept {
    if (!is(sourceOrdered))
        return 0;
    return is(ownsBlock) ? header().listed : payload_.object.count;
}

// ---- byte-wise order

void JV::sortEntries() const {
    if (static_cast<Order>(detail_) != Order::Unknown)
        return;
    const auto& object = payload_.object;
    const bool complete = size() == object.count;
    if (complete && std::is_sorted(object.entries, object.entries + object.count,
                                   [](const Entry& a, const Entry& b) { return keyLess(a.key, b.key); })) {
        detail_ = static_cast<std::uint8_t>(Order::Natural);
        return;
    }
    void* permutation = object.entries + object.capacity;
    if (object.capacity <= narrowLimit)
        sortSlots(static_cast<std::uint8_t*>(permutation), object.entries, object.count);
    else
        sortSlots(static_cast<std::uint32_t*>(permutation), object.entries, object.count);
    detail_ = static_cast<std::uint8_t>(Order::Permuted);
}

// ---- finding

/// The slot of `key`, which may be a gap, or noSlot.
std::uint32_t JV::findSlot(std::string_view key) const {
    const auto& object = payload_.object;
    if (object.count <= linearKeys) {
        const std::uint64_t prefix = keyPrefix(key);
        for (std::uint32_t slot = 0; slot < object.count; ++slot) {
            const Key& candidate = *object.entries[slot].key;
            if (candidate.prefix == prefix && candidate.text() == key)
                return slot;
        }
        return noSlot;
    }
    if (!is(ownsBlock))
        return searchPermutation(key);
    const Key* name = KeyPool::instance().find(key);
    if (name == nullptr)
        return noSlot;
    const std::vector<std::uint32_t>& table = *header().table;
    const std::size_t mask = table.size() - 1;
    for (std::size_t index = tableIndex(name) & mask; table[index] != noSlot; index = (index + 1) & mask) {
        if (object.entries[table[index]].key == name)
            return table[index];
    }
    return noSlot;
}

std::uint32_t JV::searchPermutation(std::string_view key) const {
    sortEntries();
    const std::uint64_t prefix = keyPrefix(key);
    std::uint32_t low = 0;
    std::uint32_t high = payload_.object.count;
    while (low < high) {
        const std::uint32_t middle = low + (high - low) / 2;
        const std::uint32_t slot = sortedSlot(middle);
        const int order = compareKey(*payload_.object.entries[slot].key, prefix, key);
        if (order == 0)
            return slot;
        if (order < 0)
            low = middle + 1;
        else
            high = middle;
    }
    return noSlot;
}

bool JV::has(std::string_view key) const {
    return kind_ == Kind::Object && get(key) != nullptr;
}

const JV* JV::get(std::string_view key) const {
    require(Kind::Object);
    const std::uint32_t slot = findSlot(key);
    return slot == noSlot ? nullptr : payload_.object.entries[slot].value;
}

JV* JV::get(std::string_view key) {
    return const_cast<JV*>(std::as_const(*this).get(key));
}

JV* JV::indexedChild(std::uint32_t slot) const noexcept {
    const auto wanted = [&](const JV* value) {
        return value != nullptr && value->is(indexed) && value->parent_ == this && value->slot_ == slot;
    };
    if (JV* value = payload_.object.entries[slot].value; wanted(value))
        return value;
    if (is(ownsBlock)) {
        for (const EditHeader::Displaced* former = header().displaced; former != nullptr;
             former = former->next) {
            if (wanted(former->value))
                return former->value;
        }
    }
    return nullptr;
}

// ---- changing

/// Moves the entries to a block of the object's own with room for `capacity`.
void JV::growEntries(std::size_t capacity) {
    if (capacity >= noSlot)
        throw std::length_error("Object has too many keys");
    auto& object = payload_.object;
    std::unique_ptr<std::vector<std::uint32_t>> table;
    if (capacity > linearKeys)
        table = std::make_unique<std::vector<std::uint32_t>>(std::bit_ceil(capacity * 2), noSlot);
    void* memory = std::malloc(sizeof(EditHeader) + capacity * sizeof(Entry) + permutationBytes(capacity));
    if (memory == nullptr)
        throw std::bad_alloc();

    auto* head = new (memory) EditHeader;
    auto* entries = reinterpret_cast<Entry*>(head + 1);
    if (object.count != 0)
        std::memcpy(entries, object.entries, object.count * sizeof(Entry));
    if (is(ownsBlock)) {
        *head = header();
        delete head->table;
        std::free(&header());
    } else {
        head->live = object.count;
        head->listed = listedCount();
        KeyPool::instance().acquire();
    }
    if (table != nullptr) {
        for (std::uint32_t slot = 0; slot < object.count; ++slot)
            enterSlot(*table, entries[slot].key, slot);
    }
    head->table = table.release();
    object.entries = entries;
    object.capacity = static_cast<std::uint32_t>(capacity);
    raise(ownsBlock);
    if (static_cast<Order>(detail_) == Order::Permuted)
        detail_ = static_cast<std::uint8_t>(Order::Unknown);
}

void JV::addEntry(const Key* key, JV* value) {
    auto& object = payload_.object;
    const bool extendsOrder = static_cast<Order>(detail_) == Order::Natural &&
                              (object.count == 0 || keyLess(object.entries[object.count - 1].key, key));
    object.entries[object.count] = {key, value};
    if (header().table != nullptr)
        enterSlot(*header().table, key, object.count);
    ++object.count;
    ++header().live;
    detail_ = static_cast<std::uint8_t>(extendsOrder ? Order::Natural : Order::Unknown);
}

/// Keeps the value of a slot alive, and found by its pointer, although another takes its place.
void JV::displace(std::uint32_t slot) {
    Entry& entry = payload_.object.entries[slot];
    header().displaced = new EditHeader::Displaced{entry.value, header().displaced};
}

JV* JV::set(std::string_view key, std::unique_ptr<JV> child) {
    require(Kind::Object);
    auto& object = payload_.object;
    const std::uint32_t slot = findSlot(key);
    if (slot == noSlot) {
        const Key* name = KeyPool::instance().intern(key);
        if (!is(ownsBlock) || object.count == object.capacity)
            growEntries(std::max<std::size_t>(4, std::size_t{object.count} * 2));
        JV* value = child.release();
        addEntry(name, value);
        return value;
    }
    if (!is(ownsBlock))
        growEntries(object.count);
    Entry& entry = object.entries[slot];
    if (entry.value != nullptr) {
        displace(slot);
    } else {
        ++header().live;
        detail_ = static_cast<std::uint8_t>(Order::Unknown);
    }
    return entry.value = child.release();
}

/// Destroys the value of a slot and leaves a gap, so that the key's place in the source order is kept.
void JV::vacate(std::uint32_t slot) {
    auto& object = payload_.object;
    if (object.entries[slot].value == nullptr)
        return;
    if (!is(ownsBlock))
        growEntries(object.count);
    destroy(object.entries[slot].value);
    object.entries[slot].value = nullptr;
    --header().live;
    detail_ = static_cast<std::uint8_t>(Order::Unknown);
}

void JV::remove(std::string_view key) {
    require(Kind::Object);
    if (const std::uint32_t slot = findSlot(key); slot != noSlot)
        vacate(slot);
}

JV* JV::setNull(std::string_view key) {
    return set(key, std::make_unique<JV>());
}
JV* JV::setBoolean(std::string_view key, bool value) {
    return set(key, std::make_unique<JV>(value));
}
JV* JV::setInteger(std::string_view key, std::int64_t value) {
    return set(key, std::make_unique<JV>(value));
}
JV* JV::setNumber(std::string_view key, const number::Number& value) {
    return set(key, std::make_unique<JV>(value));
}
JV* JV::setString(std::string_view key, std::string_view value) {
    return set(key, std::make_unique<JV>(value));
}
JV* JV::setArray(std::string_view key) {
    return set(key, newArray());
}
JV* JV::setObject(std::string_view key) {
    return set(key, newObject());
}

/// Puts the entry of slot `slots[i]` into slot i; there are no gaps and no displaced values.
void JV::permuteEntries(std::span<const std::uint32_t> slots) {
    auto& object = payload_.object;
    const std::vector<Entry> old(object.entries, object.entries + object.count);
    for (std::uint32_t slot = 0; slot < object.count; ++slot) {
        const Entry& entry = object.entries[slot] = old[slots[slot]];
        if (entry.value->parent_ == this && entry.value->slot_ == slots[slot])
            entry.value->slot_ = slot;
    }
    if (is(ownsBlock)) {
        header().listed = object.count;
        if (std::vector<std::uint32_t>* table = header().table; table != nullptr) {
            std::fill(table->begin(), table->end(), noSlot);
            for (std::uint32_t slot = 0; slot < object.count; ++slot)
                enterSlot(*table, object.entries[slot].key, slot);
        }
    }
    detail_ = static_cast<std::uint8_t>(Order::Unknown);
}

void JV::freeEntries(JV& object, JV*& pending) noexcept {
    for (std::uint32_t slot = 0; slot < object.payload_.object.count; ++slot)
        linkDetached(object.payload_.object.entries[slot].value, pending);
    EditHeader& head = object.header();
    while (head.displaced != nullptr) {
        EditHeader::Displaced* former = head.displaced;
        head.displaced = former->next;
        linkDetached(former->value, pending);
        delete former;
    }
    delete head.table;
    std::free(&head);
    KeyPool::instance().release();
}

} // namespace specloom::jv
