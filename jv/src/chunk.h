#pragma once

#include <cstddef> // std::size_t
#include <cstdlib> // std::free
#include <memory>  // std::unique_ptr

namespace specloom::jv {

struct ChunkDeleter {
    void operator()(std::byte* memory) const noexcept { std::free(memory); }
};
using Chunk = std::unique_ptr<std::byte[], ChunkDeleter>;

/// Uninitialised memory. A request for whole huge pages gets them where the system has them: a large document
/// touches thousands of small pages, and having each of them brought in costs more than filling it.
/// Throws std::bad_alloc.
[[nodiscard]] Chunk allocateChunk(std::size_t bytes);

/// Sizes of consecutive chunks: they double from 64 KiB on. Whole huge pages are for sources that are known
/// to be large, because all of such a page is paid for as soon as one byte of it is used.
class ChunkSizes {
  public:
    static constexpr std::size_t hugePage = std::size_t{2} * 1024 * 1024;

    [[nodiscard]] std::size_t next() noexcept {
        const std::size_t size = next_;
        next_ = size * 2 < largest_ ? size * 2 : largest_;
        return size;
    }
    /// Says that so many bytes of source are to come.
    void expect(std::size_t sourceBytes) noexcept {
        if (sourceBytes >= hugePage)
            largest_ = hugePage;
        while (next_ < largest_ && next_ < sourceBytes / 4)
            next_ *= 2;
    }

  private:
    std::size_t next_ = std::size_t{64} * 1024;
    std::size_t largest_ = hugePage / 2;
};

} // namespace specloom::jv
