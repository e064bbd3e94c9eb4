#pragma once

#include <filesystem>  // std::filesystem::path
#include <string_view> // std::string_view
#include <utility>     // std::exchange

#include <sys/stat.h> // struct stat

namespace specloom {

/// An open file descriptor, closed at the end; -1 when there is none.
class Descriptor {
  public:
    explicit Descriptor(int descriptor = -1) noexcept : descriptor_(descriptor) {}
    Descriptor(Descriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    Descriptor& operator=(Descriptor&&) = delete;
    ~Descriptor();

    [[nodiscard]] int get() const noexcept { return descriptor_; }
    [[nodiscard]] bool isOpen() const noexcept { return descriptor_ >= 0; }

  private:
    int descriptor_;
};

/// open(2), again when a signal comes in between. O_CLOEXEC and O_NOCTTY are added to the flags.
[[nodiscard]] Descriptor openDescriptor(const std::filesystem::path& path, int flags, mode_t mode = 0);

/// Writes all bytes at the descriptor's place; false as soon as that fails, with errno set.
[[nodiscard]] bool writeWhole(int descriptor, std::string_view bytes);

/// read(2), again when a signal comes in between.
[[nodiscard]] ssize_t readSome(int descriptor, char* buffer, std::size_t size);

/// Whether both tell of one file, whatever its names.
[[nodiscard]] bool isSameFile(const struct stat& a, const struct stat& b) noexcept;

} // namespace specloom
