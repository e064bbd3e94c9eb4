#include "jv/chunk.h"

#include <new> // std::bad_alloc

#if defined(__linux__)
#include <sys/mman.h> // madvise
#endif

namespace specloom::jv {

Chunk allocateChunk(std::size_t bytes) {
    const bool huge = bytes % ChunkSizes::hugePage == 0;
    void* memory = huge ? std::aligned_alloc(ChunkSizes::hugePage, bytes) : std::malloc(bytes);
    if (memory == nullptr)
        throw std::bad_alloc();
#if defined(__linux__)
    if (huge)
        madvise(memory, bytes, MADV_HUGEPAGE); // a wish: where it is not granted, small pages serve as well
#endif
    return Chunk(static_cast<std::byte*>(memory));
}

} // namespace specloom::jv
