#pragma once

#include <cstddef> // std::size_t

namespace specloom::openapi {

/// Memory for nodes and what they hold. A large document has a hundred thousand of them, which are made in
/// one go, walked again and again, and end together: side by side in large pieces of memory they take less
/// room, fewer pages and no search for a place. The pieces are given back when the last node of the process
/// is gone.
///
/// Not locked: trees are used from one thread. With the address sanitizer it steps aside, so that each node
/// is watched by itself.
class NodePool {
  public:
    /// Throws std::bad_alloc.
    [[nodiscard]] static void* allocate(std::size_t bytes);
    /// `bytes` as allocated.
    static void release(void* memory, std::size_t bytes) noexcept;
    /// Tells how large the document is whose nodes are to come, so that they get pieces of a fitting size.
    static void expect(std::size_t sourceBytes) noexcept;
};

/// Lets the small blocks that nodes hold lie between the nodes, in the order in which a walk needs them.
template <typename T>
struct PoolAllocator {
    using value_type = T;

    PoolAllocator() noexcept = default;
    template <typename U>
    PoolAllocator(const PoolAllocator<U>&) noexcept {} // NOLINT(*-explicit-*): allocators convert

    [[nodiscard]] T* allocate(std::size_t count) {
        return static_cast<T*>(NodePool::allocate(count * sizeof(T)));
    }
    void deallocate(T* memory, std::size_t count) noexcept { NodePool::release(memory, count * sizeof(T)); }
    friend bool operator==(const PoolAllocator&, const PoolAllocator&) noexcept { return true; }
};

} // namespace specloom::openapi
