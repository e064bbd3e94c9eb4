#include "jv/arena.h"

#include <algorithm> // std::max
#include <cstring>   // std::memcpy

namespace specloom::jv {

void* Arena::allocateSlow(std::size_t bytes) {
    while (used_ < chunks_.size()) { // of before a restart
        const SizedChunk& chunk = chunks_[used_++];
        if (chunk.bytes >= bytes)
            return open(chunk, bytes);
    }
    if (bytes > ChunkSizes::hugePage / 4) {
        // A chunk of its own; the open chunk goes on serving small requests.
        chunks_.push_back({allocateChunk(bytes), bytes});
        used_ = chunks_.size();
        return chunks_.back().memory.get();
    }
    // A request of up to a quarter of a huge page may still be larger than an early chunk.
    const std::size_t size = std::max(sizes_.next(), bytes);
    chunks_.push_back({allocateChunk(size), size});
    used_ = chunks_.size();
    return open(chunks_.back(), bytes);
}

void* Arena::open(const SizedChunk& chunk, std::size_t bytes) noexcept {
    next_ = chunk.memory.get() + bytes;
    left_ = chunk.bytes - bytes;
    return chunk.memory.get();
}

char* Arena::copyText(std::string_view text) {
    char* copy = static_cast<char*>(allocate(text.size()));
    std::memcpy(copy, text.data(), text.size());
    return copy;
}

} // namespace specloom::jv
