#pragma once

#include <array>     // std::array
#include <streambuf> // std::streambuf

namespace specloom {

/// What a std::ostream needs to write to an open descriptor, which stays its owner's. Allocates nothing. What
/// is left in the buffer at the end is lost: flush the stream before.
class OutputBuffer final : public std::streambuf {
  public:
    explicit OutputBuffer(int descriptor);

    /// Whether what comes next begins a line.
    [[nodiscard]] bool isAtLineStart() const noexcept;

  protected:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char* bytes, std::streamsize count) override;
    int sync() override;

  private:
    [[nodiscard]] bool put(const char* bytes, std::size_t count);
    [[nodiscard]] bool empty();

    int descriptor_;
    char last_ = '\n'; // of what went to the descriptor
    std::array<char, 1 << 13> buffer_;
};

} // namespace specloom
