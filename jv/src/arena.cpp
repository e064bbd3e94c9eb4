#include "jv/arena.h"

#include <algorithm> // std::max
#include <cstring>   // std::memcpy

namespace specloom::jv {

void* Arena::allocateSlow(std::size_t bytes) {
    if (bytes > ChunkSizes::hugePage / 4) {
        // A chunk of its own; the open chunk goes on serving small requests.
        chunks_.push_back(allocateChunk(bytes));
        return chunks_.back().get();
    }
    // A request of up to a quarter of a huge page may still be larger than an early chunk.
    const std::size_t size = std::max(sizes_.next(), bytes);
    chunks_.push_back(allocateChunk(size));
    next_ = chunks_.back().get() + bytes;
    left_ = size - bytes;
    return chunks_.back().get();
}

char* Arena::copyText(std::string_view text) {
    char* copy = static_cast<char*>(allocate(text.size()));
    std::memcpy(copy, text.data(), text.size());
    return copy;
}

} // namespace specloom::jv
