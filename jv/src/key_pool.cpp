#include "jv/key_pool.h"

#include "foundation/keyed_hash.h"

#include <algorithm> // std::min
#include <bit>       // std::endian
#include <limits>    // std::numeric_limits
#include <new>       // placement new
#include <stdexcept> // std::length_error

namespace specloom::jv {

namespace {

constexpr std::size_t firstSlots = 1024;

/// Slots between the one that a hash names and the one where its key lies, beyond which the keys were made to
/// collide: half of the slots are free, and among a million keys that were not none comes near to it.
constexpr std::size_t longestProbe = 256;

std::uint64_t load64(const char* bytes) noexcept {
    std::uint64_t value;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

} // namespace

std::uint64_t keyPrefix(std::string_view text) noexcept {
    std::uint64_t prefix = 0;
    if (text.size() >= 8) {
        prefix = load64(text.data());
    } else if (!text.empty()) {
        std::memcpy(&prefix, text.data(), text.size());
    }
    if constexpr (std::endian::native == std::endian::little)
        prefix = __builtin_bswap64(prefix);
    return prefix;
}

int compareKey(const Key& key, std::uint64_t prefix, std::string_view text) noexcept {
    if (key.prefix != prefix)
        return key.prefix < prefix ? -1 : 1;
    const std::size_t common = std::min<std::size_t>(key.length, text.size());
    if (const int order = std::memcmp(key.data(), text.data(), common); order != 0)
        return order;
    return key.length < text.size() ? -1 : key.length > text.size() ? 1 : 0;
}

KeyPool& KeyPool::instance() {
    // Never destroyed: documents in static storage may outlive every other static object.
    static auto* pool = new KeyPool;
    return *pool;
}

/// Eight bytes a step instead of FNV's one: keys are hashed for each of their uses in a document, and this
/// hash never leaves the pool. Whoever wants to can write keys that collide.
std::uint64_t KeyPool::quickHash(std::string_view text) noexcept {
    constexpr std::uint64_t factor = 0x9e3779b97f4a7c15;
    std::uint64_t hash = text.size() * factor;
    const char* bytes = text.data();
    std::size_t left = text.size();
    for (; left >= 8; bytes += 8, left -= 8) {
        hash = (hash ^ load64(bytes)) * factor;
        hash ^= hash >> 32;
    }
    std::uint64_t tail = 0;
    if (left != 0)
        std::memcpy(&tail, bytes, left);
    hash = (hash ^ tail) * factor;
    return hash ^ (hash >> 32);
}

std::uint64_t KeyPool::hashOf(std::string_view text) const noexcept {
    return isKeyed_ ? keyedHash(text) : quickHash(text);
}

std::size_t KeyPool::probe(std::string_view text, std::uint64_t hash) const noexcept {
    const std::size_t mask = slots_.size() - 1;
    std::size_t index = hash & mask;
    while (slots_[index].key != nullptr &&
           (slots_[index].hash != hash || slots_[index].key->text() != text)) {
        index = (index + 1) & mask;
    }
    return index;
}

Key* KeyPool::intern(std::string_view text) {
    if (text.size() > std::numeric_limits<std::uint32_t>::max())
        throw std::length_error("Object key is too long");
    if (count_ * 2 >= slots_.size())
        grow();
    std::uint64_t hash = hashOf(text);
    std::size_t index = probe(text, hash);
    if (!isKeyed_ && ((index - hash) & (slots_.size() - 1)) > longestProbe) {
        hashUnderKey();
        hash = hashOf(text);
        index = probe(text, hash);
    }
    Slot& slot = slots_[index];
    if (slot.key == nullptr) {
        void* memory = arena_.allocate(sizeof(Key) + text.size());
        slot.key = new (memory) Key{keyPrefix(text), static_cast<std::uint32_t>(text.size()), 0, nullptr};
        if (!text.empty())
            std::memcpy(reinterpret_cast<char*>(slot.key + 1), text.data(), text.size());
        slot.hash = hash;
        ++count_;
    }
    return slot.key;
}

Key* KeyPool::find(std::string_view text) const noexcept {
    return slots_.empty() ? nullptr : slots_[probe(text, hashOf(text))].key;
}

void KeyPool::grow() {
    std::vector<Slot> old(slots_.empty() ? firstSlots : slots_.size() * 2);
    old.swap(slots_);
    refill(old);
}

/// From the quick hash to the one that keys cannot be prepared for.
void KeyPool::hashUnderKey() {
    std::vector<Slot> old(slots_.size());
    old.swap(slots_);
    isKeyed_ = true;
    for (Slot& slot : old)
        if (slot.key != nullptr)
            slot.hash = hashOf(slot.key->text());
    refill(old);
}

void KeyPool::refill(const std::vector<Slot>& old) noexcept {
    const std::size_t mask = slots_.size() - 1;
    for (const Slot& slot : old) {
        if (slot.key == nullptr)
            continue;
        std::size_t index = slot.hash & mask;
        while (slots_[index].key != nullptr)
            index = (index + 1) & mask;
        slots_[index] = slot;
    }
}

std::uint32_t KeyPool::nextMark() {
    if (++lastMark_ == 0) {
        for (const Slot& slot : slots_) {
            if (slot.key != nullptr)
                slot.key->mark = 0;
        }
        lastMark_ = 1;
    }
    return lastMark_;
}

void KeyPool::release() noexcept {
    if (--uses_ != 0)
        return;
    slots_.clear();
    slots_.shrink_to_fit();
    arena_.clear();
    isKeyed_ = false;
    count_ = 0;
}

} // namespace specloom::jv
