#pragma once

#include "foundation/descriptor.h"

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
class InputFile {
  public:
    /// Opens the file, links followed; isOpen() tells whether that worked, which it does not for a folder.
    ///
    /// Throws std::runtime_error with "Neither a file nor a pipe: {}" and the path, which is UTF-8, and what
    /// requireBounds() throws.
    explicit InputFile(std::string_view path, std::uint64_t bound = largestInput);
    ~InputFile();
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    [[nodiscard]] bool isOpen() const noexcept { return file_.isOpen(); }

    /// In bytes; 0 when it is not known before the end.
    [[nodiscard]] std::size_t size() const noexcept { return size_; }

    /// Its bytes. Fails (std::ios::badbit) when reading does, and when there are more than the bound.
    [[nodiscard]] std::istream& stream() noexcept { return stream_; }

    /// Throws std::runtime_error with "Longer than {} bytes: {}", the bound and the path, when more than that
    /// is, or was, there to read: the better reason why the stream failed.
    void requireBounds() const;

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
