#pragma once

#include "foundation/message.h"

#include <iosfwd> // std::ostream

namespace specloom {

/// Remarks for people, beside what a command prints: that something is about to mislead them, or was done
/// otherwise than they may think. The one home of lines that begin with "specloom: note: ".
class Notes {
  public:
    /// Silent.
    Notes() = default;
    /// Onto the stream, which must outlive this object; null is silent, too.
    explicit Notes(std::ostream* stream) noexcept : stream_(stream) {}

    /// Writes "specloom: note: {text}" and a line feed. Line feeds of the text become spaces.
    void add(const Message& text) const;

  private:
    std::ostream* stream_ = nullptr;
};

} // namespace specloom
