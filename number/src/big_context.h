#pragma once

#include "number/limbs.h"

#include <cstddef> // std::size_t
#include <cstdint> // std::uint32_t
#include <map>     // std::map
#include <vector>  // std::vector

namespace specloom::number {

/// What all big numbers of the process share: the allocator of their limbs, the count of those alive, and the
/// powers that radix conversion needs again and again. Not locked: the program has one thread.
class BigContext {
  public:
    /// Size 0 releases `block` and returns null, a null `block` allocates, a failure returns null and leaves
    /// `block` as it was. `opaque` is what was given along with the function.
    using Reallocate = void* (*)(void* opaque, void* block, std::size_t size);

    /// The one instance. It is never destroyed, so that a big number with static lifetime may end at any
    /// time.
    static BigContext& instance();

    BigContext(const BigContext&) = delete;
    BigContext& operator=(const BigContext&) = delete;

    /// Takes `function` for all blocks from now on; null restores the standard library's allocator. It must
    /// be able to release the blocks of its predecessor, or no big number may be alive.
    void setAllocator(Reallocate function, void* opaque) noexcept;

    /// By the allocator's contract above.
    [[nodiscard]] void* reallocate(void* block, std::size_t size) noexcept;

    /// How many big numbers are alive.
    [[nodiscard]] std::size_t liveCount() const noexcept { return live_; }
    /// How many powers are cached at the moment.
    [[nodiscard]] std::size_t cachedPowers() const noexcept;

    /// A big number begins to exist.
    void acquire() noexcept { ++live_; }
    /// A big number ceases to exist; the last one takes the cached powers with it.
    void release() noexcept {
        if (--live_ == 0)
            clearCache();
    }

    /// `radix` to the power digitsPerLimb(radix) * 2^`level`. The reference holds until the cache is cleared.
    /// Throws std::bad_alloc.
    const Natural& power(unsigned radix, unsigned level);

  private:
    BigContext() = default;
    void clearCache() noexcept { powers_.clear(); }

    Reallocate reallocate_ = nullptr;
    void* opaque_ = nullptr;
    std::size_t live_ = 0;
    // A map, so that one more power moves none that is in use.
    std::map<std::uint64_t, Natural> powers_;
};

} // namespace specloom::number
