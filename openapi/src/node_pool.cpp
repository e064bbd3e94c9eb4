#include "openapi/node_pool.h"

#include "jv/chunk.h"

#include <array>  // std::array
#include <new>    // operator new
#include <vector> // std::vector

#if defined(__SANITIZE_ADDRESS__)
#define SPECLOOM_PLAIN_NODES 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define SPECLOOM_PLAIN_NODES 1
#endif
#endif

namespace specloom::openapi {

#if defined(SPECLOOM_PLAIN_NODES)

void* NodePool::allocate(std::size_t bytes) {
    return ::operator new(bytes);
}

void NodePool::release(void* memory, std::size_t) noexcept {
    ::operator delete(memory);
}

void NodePool::expect(std::size_t) noexcept {}

#else

namespace {

constexpr std::size_t grain = 16;    // alignment, and the step from one size of block to the next
constexpr std::size_t largest = 512; // larger nodes are few

struct FreeBlock {
    FreeBlock* next;
};

struct State {
    std::array<FreeBlock*, largest / grain + 1> free{}; ///< by size in grains
    std::byte* next = nullptr;                          ///< of the last piece: what is not handed out yet
    std::byte* end = nullptr;
    std::vector<jv::Chunk> pieces;
    jv::ChunkSizes sizes;
    std::size_t blocks = 0; ///< in use
};

/// Never destroyed: a tree may live until the very end of the process.
[[nodiscard]] State& state() {
    static State& instance = *new State;
    return instance;
}

[[nodiscard]] constexpr std::size_t grainsOf(std::size_t bytes) noexcept {
    return (bytes + grain - 1) / grain;
}

void addPiece(State& pool) {
    const std::size_t size = pool.sizes.next();
    pool.pieces.push_back(jv::allocateChunk(size));
    pool.next = pool.pieces.back().get();
    pool.end = pool.next + size;
}

} // namespace

void* NodePool::allocate(std::size_t bytes) {
    if (bytes > largest)
        return ::operator new(bytes);
    State& pool = state();
    const std::size_t grains = grainsOf(bytes);
    FreeBlock*& free = pool.free[grains];
    void* memory = free;
    if (free != nullptr) {
        free = free->next;
    } else {
        if (static_cast<std::size_t>(pool.end - pool.next) < grains * grain)
            addPiece(pool);
        memory = pool.next;
        pool.next += grains * grain;
    }
    ++pool.blocks;
    return memory;
}

void NodePool::release(void* memory, std::size_t bytes) noexcept {
    if (bytes > largest)
        return ::operator delete(memory);
    State& pool = state();
    FreeBlock*& free = pool.free[grainsOf(bytes)];
    free = new (memory) FreeBlock{free};
    if (--pool.blocks == 0)
        pool = State();
}

void NodePool::expect(std::size_t sourceBytes) noexcept {
    state().sizes.expect(sourceBytes);
}

#endif

} // namespace specloom::openapi
