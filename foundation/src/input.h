#pragma once

#include <cstddef> // std::size_t
#include <iosfwd>  // std::istream

namespace specloom {

/// The bytes of something that is open to be read once, from its beginning to its end.
class Input {
  public:
    virtual ~Input() = default;

    /// Fails (std::ios::badbit) when reading does.
    [[nodiscard]] virtual std::istream& stream() noexcept = 0;

    /// In bytes; 0 when it is not known before the end.
    [[nodiscard]] virtual std::size_t size() const noexcept = 0;

    /// Throws when there is, or was, more to read than is taken: the better reason why the stream failed.
    virtual void requireBounds() const = 0;
};

} // namespace specloom
