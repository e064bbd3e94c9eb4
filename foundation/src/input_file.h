#pragma once

#include "foundation/descriptor.h"
#include "foundation/input.h"

#include <cstdint>     // std::uint64_t
#include <istream>     // std::istream
#include <memory>      // std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom {

/// The most bytes that are taken from one file or pipe, unless something else is said: 1 GiB.
inline constexpr std::uint64_t largestInput = std::uint64_t{1} << 30;

/// A file that is read as a whole: a regular file, a pipe, or whatever standard input is. Other devices are
/// refused, before they are opened: one like /dev/zero never ends.
class InputFile final : public Input {
  public:
    /// Opens the file, links followed; isOpen() tells whether that worked, which it does not for a folder.
    ///
    /// Throws std::runtime_error with "Neither a file nor a pipe: {}" and the path, which is UTF-8, and what
    /// requireBounds() throws.
    explicit InputFile(std::string_view path, std::uint64_t bound = largestInput);
    ~InputFile() override;
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    [[nodiscard]] bool isOpen() const noexcept { return file_.isOpen(); }

    [[nodiscard]] std::size_t size() const noexcept override { return size_; }

    /// Fails also when there are more bytes than the bound.
    [[nodiscard]] std::istream& stream() noexcept override { return stream_; }

    /// Throws std::runtime_error with "Longer than {} bytes: {}", the bound and the path.
    void requireBounds() const override;

  private:
    class Buffer;

    std::string path_;
    std::uint64_t bound_;
    Descriptor file_;
    std::size_t size_ = 0;
    std::unique_ptr<Buffer> buffer_;
    std::istream stream_;
};

} // namespace specloom
