#include "foundation/keyed_hash.h"

#include <chrono>  // std::chrono::steady_clock
#include <cstring> // std::memcpy

#include <sys/random.h> // getrandom
#include <unistd.h>     // getpid

namespace specloom {

namespace {

struct HashKey {
    std::uint64_t low;
    std::uint64_t high;
};

/// Up to eight bytes as a number; which way round does not matter.
std::uint64_t wordOf(const char* bytes, std::size_t count) noexcept {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, count);
    return word;
}

HashKey drawKey() noexcept {
    HashKey key{};
    if (getrandom(&key, sizeof key, GRND_NONBLOCK) == static_cast<ssize_t>(sizeof key))
        return key;
    // Without the kernel's randomness: what differs from run to run, which is better than nothing.
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    key.low = static_cast<std::uint64_t>(now) * 0x9e3779b97f4a7c15;
    key.high = reinterpret_cast<std::uintptr_t>(&key) ^ (static_cast<std::uint64_t>(getpid()) << 32);
    return key;
}

} // namespace

KeyedHasher::KeyedHasher() noexcept {
    static const HashKey key = drawKey();
    v0_ = key.low ^ 0x736f6d6570736575;
    v1_ = key.high ^ 0x646f72616e646f6d;
    v2_ = key.low ^ 0x6c7967656e657261;
    v3_ = key.high ^ 0x7465646279746573;
}

void KeyedHasher::add(std::string_view text) noexcept {
    add(text.size());
    const char* bytes = text.data();
    std::size_t left = text.size();
    for (; left >= 8; bytes += 8, left -= 8)
        add(wordOf(bytes, 8));
    if (left != 0)
        add(wordOf(bytes, left));
}

std::uint64_t KeyedHasher::finish() noexcept {
    v2_ ^= 0xff;
    round();
    round();
    round();
    return v0_ ^ v1_ ^ v2_ ^ v3_;
}

std::uint64_t keyedHash(std::string_view text) noexcept {
    KeyedHasher hasher;
    hasher.add(text);
    return hasher.finish();
}

} // namespace specloom
