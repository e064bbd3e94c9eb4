#include "jv/arena.h"

#include <algorithm> // std::max, std::min
#include <cstring>   // std::memcpy

namespace specloom::jv {

namespace {
constexpr std::size_t largestChunk = std::size_t{1024} * 1024;
}

void* Arena::allocateSlow(std::size_t bytes) {
    if (bytes > largestChunk / 4) {
        // A chunk of its own; the open chunk goes on serving small requests.
        chunks_.push_back(std::make_unique_for_overwrite<char[]>(bytes));
        return chunks_.back().get();
    }
    chunkSize_ = std::min(chunkSize_ * 2, largestChunk);
    // Requests up to a quarter of the largest chunk may still be larger than an early one.
    const std::size_t size = std::max(chunkSize_, bytes);
    chunks_.push_back(std::make_unique_for_overwrite<char[]>(size));
    next_ = chunks_.back().get() + bytes;
    left_ = size - bytes;
    return chunks_.back().get();
}

char* Arena::copyText(std::string_view text) {
    char* copy = static_cast<char*>(allocate(text.size()));
    std::memcpy(copy, text.data(), text.size());
    return copy;
}

void Arena::clear() noexcept {
    chunks_.clear();
    next_ = nullptr;
    left_ = 0;
    chunkSize_ = 32 * 1024;
}

} // namespace specloom::jv
