#pragma once

#include "jv/arena.h"

#include <cstdint>     // std::uint32_t, std::uint64_t
#include <cstring>     // std::memcmp
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::jv {

/// An object key that is kept once however often it is used: two keys are equal exactly when their addresses
/// are. The text lies behind the header.
struct Key {
    std::uint64_t prefix; ///< the first eight bytes, big-endian, padded with zeros: compares like the text
    std::uint32_t length; ///< bytes of the text
    std::uint32_t mark;   ///< scratch of KeyPool::nextMark()
    Key* successor;       ///< the key that followed this one last; scratch of KeyPool::internAfter()

    [[nodiscard]] const char* data() const noexcept { return reinterpret_cast<const char*>(this + 1); }
    [[nodiscard]] std::string_view text() const noexcept { return {data(), length}; }
};

/// The prefix of Key for any text.
[[nodiscard]] std::uint64_t keyPrefix(std::string_view text) noexcept;

/// Byte-wise comparison of a key with a text whose prefix is known: negative, 0 or positive.
[[nodiscard]] int compareKey(const Key& key, std::uint64_t prefix, std::string_view text) noexcept;

/// Byte-wise order of two keys.
[[nodiscard]] inline bool keyLess(const Key* a, const Key* b) noexcept {
    if (a->prefix != b->prefix)
        return a->prefix < b->prefix;
    return a != b && compareKey(*a, b->prefix, b->text()) < 0;
}

/// All keys of the process. Documents and edited objects hold a use each; when the last one goes, the keys go
/// too. Not locked: values are used from one thread.
class KeyPool {
  public:
    static KeyPool& instance();

    /// The key of this text, made when it is new. Throws std::length_error for 4 GiB and more.
    Key* intern(std::string_view text);
    /// The same, faster where keys follow each other as they did before: objects of one kind do.
    /// `previous` is the key before this one, or null.
    Key* internAfter(Key* previous, std::string_view text) {
        if (previous == nullptr)
            return intern(text);
        if (previous->successor == nullptr || previous->successor->text() != text)
            previous->successor = intern(text);
        return previous->successor;
    }
    /// The key of this text, or null when no object of the process has ever had it.
    [[nodiscard]] Key* find(std::string_view text) const noexcept;

    /// A value that no key carries as its `mark` yet.
    [[nodiscard]] std::uint32_t nextMark();

    /// What keys are found by as long as they do not collide.
    [[nodiscard]] static std::uint64_t quickHash(std::string_view text) noexcept;

    void acquire() noexcept { ++uses_; }
    void release() noexcept;

  private:
    struct Slot {
        std::uint64_t hash;
        Key* key;
    };

    [[nodiscard]] std::uint64_t hashOf(std::string_view text) const noexcept;
    /// Index of the slot that holds `text`, or of the free slot where it belongs.
    [[nodiscard]] std::size_t probe(std::string_view text, std::uint64_t hash) const noexcept;
    void grow();
    void hashUnderKey();
    /// Puts what `old` holds into the slots, which are free.
    void refill(const std::vector<Slot>& old) noexcept;

    Arena arena_;
    std::vector<Slot> slots_; ///< open addressing; the size is a power of two
    bool isKeyed_ = false;    ///< whether slots have the hash that nobody can foresee
    std::size_t count_ = 0;
    std::size_t uses_ = 0;
    std::uint32_t lastMark_ = 0;
};

} // namespace specloom::jv
