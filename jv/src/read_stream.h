#pragma once

#include <cstddef>     // std::size_t
#include <iosfwd>      // std::istream
#include <memory>      // std::unique_ptr
#include <string_view> // std::string_view

namespace specloom::jv {

/// The whole text of a stream.
struct StreamText {
    std::unique_ptr<char[]> bytes;
    std::size_t size = 0;

    [[nodiscard]] std::string_view view() const noexcept { return {bytes.get(), size}; }
};

/// Reads a stream to its end. Throws std::runtime_error with "Failed to read input" when it breaks before.
[[nodiscard]] StreamText readStream(std::istream& stream);

} // namespace specloom::jv
