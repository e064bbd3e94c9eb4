#include "foundation/input_file.h"

#include "foundation/file_system.h"
#include "foundation/message.h"

#include <algorithm>  // std::min
#include <array>      // std::array
#include <cstring>    // std::memcpy
#include <filesystem> // std::filesystem::path
#include <ios>        // std::ios, std::streamsize
#include <stdexcept>  // std::runtime_error
#include <streambuf>  // std::streambuf

#include <fcntl.h>
#include <unistd.h>

namespace specloom {

/// The bytes of a descriptor, up to the bound.
class InputFile::Buffer final : public std::streambuf {
  public:
    Buffer(int descriptor, std::uint64_t bound) : descriptor_(descriptor), bound_(bound) {}

    [[nodiscard]] bool isTooLong() const noexcept { return taken_ > bound_; }

  protected:
    int_type underflow() override {
        const std::size_t count = take(block_.data(), block_.size());
        setg(block_.data(), block_.data(), block_.data() + count);
        return count == 0 ? traits_type::eof() : traits_type::to_int_type(block_[0]);
    }

    std::streamsize xsgetn(char* bytes, std::streamsize wanted) override {
        std::streamsize filled = std::min<std::streamsize>(wanted, egptr() - gptr());
        if (filled > 0) // else there may be no block yet
            std::memcpy(bytes, gptr(), static_cast<std::size_t>(filled));
        gbump(static_cast<int>(filled));
        while (filled < wanted) {
            const std::size_t count = take(bytes + filled, static_cast<std::size_t>(wanted - filled));
            if (count == 0)
                break;
            filled += static_cast<std::streamsize>(count);
        }
        return filled;
    }

    /// Only to tell places, of regular files and before anything was taken into the block.
    pos_type seekoff(off_type offset, std::ios::seekdir direction, std::ios::openmode /*which*/) override {
        if (egptr() != eback())
            return pos_type(off_type(-1));
        const int whence = direction == std::ios::beg   ? SEEK_SET
                           : direction == std::ios::end ? SEEK_END
                                                        : SEEK_CUR;
        return pos_type(lseek(descriptor_, offset, whence));
    }
    pos_type seekpos(pos_type position, std::ios::openmode which) override {
        return seekoff(off_type(position), std::ios::beg, which);
    }

  private:
    /// What is thrown here sets the stream's badbit, and goes no further.
    std::size_t take(char* bytes, std::size_t size) {
        const ssize_t count = readSome(descriptor_, bytes, size);
        if (count > 0)
            taken_ += static_cast<std::uint64_t>(count);
        if (count < 0 || isTooLong())
            throw std::ios::failure("read");
        return static_cast<std::size_t>(count);
    }

    int descriptor_;
    std::uint64_t bound_;
    std::uint64_t taken_ = 0;
    std::array<char, 1 << 14> block_{};
};

namespace {

bool isDevice(const struct stat& status) {
    return S_ISCHR(status.st_mode) || S_ISBLK(status.st_mode);
}

/// A terminal for instance: what a command is given to read is its caller's choice.
bool isStandardInput(const struct stat& status) {
    struct stat input {};
    return fstat(STDIN_FILENO, &input) == 0 && isDevice(input) && input.st_rdev == status.st_rdev;
}

Descriptor openInput(std::string_view path) {
    const std::filesystem::path native = pathFromUtf8(path);
    struct stat status {};
    if (stat(native.c_str(), &status) == 0 && isDevice(status) && !isStandardInput(status))
        throw std::runtime_error(formatMessage("Neither a file nor a pipe: {}", path));
    // A folder opens like a file and fails only when it is read.
    return S_ISDIR(status.st_mode) ? Descriptor() : openDescriptor(native, O_RDONLY);
}

} // namespace

InputFile::InputFile(std::string_view path, std::uint64_t bound)
    : path_(path), bound_(bound), file_(openInput(path)),
      buffer_(std::make_unique<Buffer>(file_.get(), bound)), stream_(buffer_.get()) {
    struct stat status {};
    if (isOpen() && fstat(file_.get(), &status) == 0 && S_ISREG(status.st_mode))
        size_ = static_cast<std::size_t>(status.st_size);
    requireBounds();
}

InputFile::~InputFile() = default;

void InputFile::requireBounds() const {
    if (size_ > bound_ || buffer_->isTooLong())
        throw std::runtime_error(formatMessage("Longer than {} bytes: {}", bound_, path_));
}

} // namespace specloom
