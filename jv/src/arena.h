#pragma once

#include "jv/chunk.h"

#include <cstddef>     // std::byte, std::size_t
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::jv {

/// Memory that is only given back all at once. Chunks double from 64 KiB to 1 MiB; a request that is too
/// large for a chunk gets one of its own.
class Arena {
  public:
    /// `bytes` of uninitialised memory, aligned to 8.
    [[nodiscard]] void* allocate(std::size_t bytes) {
        bytes = (bytes + 7) & ~std::size_t{7};
        if (bytes > left_)
            return allocateSlow(bytes);
        std::byte* result = next_;
        next_ += bytes;
        left_ -= bytes;
        return result;
    }

    /// Uninitialised room for `count` objects of a type without a destructor.
    template <typename T>
    [[nodiscard]] T* allocateArray(std::size_t count) {
        static_assert(alignof(T) <= 8);
        return static_cast<T*>(allocate(count * sizeof(T)));
    }

    /// A copy of `text`; not zero-terminated.
    [[nodiscard]] char* copyText(std::string_view text);

    /// Says that a source of so many bytes is about to fill the arena.
    void expect(std::size_t sourceBytes) noexcept { sizes_.expect(sourceBytes); }
    void clear() noexcept { *this = Arena(); }
    /// All that was allocated is given back to the arena, which hands it out again.
    void restart() noexcept {
        used_ = 0;
        next_ = nullptr;
        left_ = 0;
    }

  private:
    struct SizedChunk {
        Chunk memory;
        std::size_t bytes;
    };

    void* allocateSlow(std::size_t bytes);
    void* open(const SizedChunk& chunk, std::size_t bytes) noexcept;

    std::vector<SizedChunk> chunks_;
    std::size_t used_ = 0; ///< of them, since the last restart
    std::byte* next_ = nullptr;
    std::size_t left_ = 0;
    ChunkSizes sizes_;
};

} // namespace specloom::jv
