#include "foundation/output_file.h"

#include "foundation/file_system.h"
#include "foundation/held_signals.h"
#include "foundation/message.h"
#include "foundation/sibling_file.h"

#include <algorithm>   // std::min
#include <cerrno>      // errno
#include <filesystem>  // std::filesystem::path
#include <memory>      // std::make_unique_for_overwrite
#include <optional>    // std::optional
#include <string_view> // std::string_view
#include <utility>     // std::move

#include <fcntl.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace specloom {
namespace {

/// Opens the regular file at `path` for reading, when it is still the one that `status` tells of.
Descriptor openToRead(const fs::path& path, const struct stat& status) {
    Descriptor file = openDescriptor(path, O_RDONLY | O_NONBLOCK);
    struct stat opened {};
    const bool isIt = file.isOpen() && fstat(file.get(), &opened) == 0 && isSameFile(opened, status);
    return isIt ? std::move(file) : Descriptor();
}

bool holds(const fs::path& path, const struct stat& status, std::string_view content) {
    if (status.st_size != static_cast<off_t>(content.size()))
        return false;
    const Descriptor file = openToRead(path, status);
    constexpr std::size_t blockSize = std::size_t{64} * 1024;
    const auto block = std::make_unique_for_overwrite<char[]>(blockSize);
    while (!content.empty()) {
        const ssize_t count = readSome(file.get(), block.get(), std::min(blockSize, content.size()));
        if (count <= 0 || !content.starts_with({block.get(), static_cast<std::size_t>(count)}))
            return false;
        content.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

/// None when the file may not be read.
std::optional<std::string> contentOf(const fs::path& path, const struct stat& status) {
    const Descriptor file = openToRead(path, status);
    std::string content(static_cast<std::size_t>(status.st_size), '\0');
    for (std::size_t filled = 0; filled < content.size();) {
        const ssize_t count = readSome(file.get(), content.data() + filled, content.size() - filled);
        if (count <= 0)
            return std::nullopt;
        filled += static_cast<std::size_t>(count);
    }
    return content;
}

/// Whoever wrote `> out.json` holds the file itself, and would not see another one of its name.
bool isStandardStream(const struct stat& status) {
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        struct stat stream {};
        if (fstat(descriptor, &stream) == 0 && isSameFile(stream, status))
            return true;
    }
    return false;
}

bool setSize(int file, off_t size) {
    return ftruncate(file, size) == 0;
}

bool overwrite(int file, std::string_view content) {
    return lseek(file, 0, SEEK_SET) == 0 && writeWhole(file, content);
}

/// False when the disk or a limit has no room for a file of `size` bytes. Where room cannot be reserved it is
/// taken to be there.
bool reserve(int file, off_t present, off_t size) {
    if (size <= present)
        return true;
    int error = EINTR;
    while (error == EINTR)
        error = posix_fallocate(file, present, size - present);
    return error != ENOSPC && error != EDQUOT && error != EFBIG && error != EIO;
}

bool writeInPlace(int file, const struct stat& status, std::string_view content,
                  const std::optional<std::string>& former, Durability durability) {
    if (!reserve(file, status.st_size, static_cast<off_t>(content.size()))) {
        setSize(file, status.st_size); // what was reserved before there was no more
        return false;
    }
    if (overwrite(file, content) && setSize(file, static_cast<off_t>(content.size())) &&
        settle(file, durability))
        return true;
    if (former) {
        // Fits, because it was there before. A limit below its size stopped the new content no later.
        static_cast<void>(overwrite(file, *former));
        setSize(file, status.st_size);
    }
    return false;
}

/// Writes a file that has nothing to lose, such as a new one, without another file beside it: that is half of
/// the work where there are thousands. It stays empty when there is no room.
bool fillEmpty(int file, std::string_view content) {
    const HeldSignals held;
    if (writeWhole(file, content) && settle(file, Durability::Run))
        return true;
    setSize(file, 0);
    return false;
}

} // namespace

OutputFile::OutputFile(std::string_view path)
    : path_(path), file_(openDescriptor(pathFromUtf8(path), O_WRONLY | O_CREAT, 0666)) {
    if (!file_.isOpen())
        throw OpenForWritingError(formatMessage("Failed to open file for writing: {}", path));
}

void OutputFile::replace(std::string_view content, Durability durability) {
    struct stat status {};
    const bool isReplaced = fstat(file_.get(), &status) == 0 &&
                            (S_ISREG(status.st_mode) ? replaceRegular(status, content, durability)
                                                     : writeWhole(file_.get(), content));
    if (!isReplaced)
        throw std::runtime_error(formatMessage("Failed to write file: {}", path_));
}

bool OutputFile::replaceRegular(const struct stat& status, std::string_view content,
                                Durability durability) const {
    const fs::path path = pathFromUtf8(path_);
    if (holds(path, status, content))
        return true;
    if (status.st_size == 0 && durability == Durability::Run)
        return fillEmpty(file_.get(), content);
    if (status.st_nlink == 1 && !isStandardStream(status)) {
        const Replacement replacement = replaceBySibling(path, file_.get(), status, content, durability);
        if (replacement != Replacement::Impossible)
            return replacement == Replacement::Done;
    }
    const std::optional<std::string> former = contentOf(path, status);
    const HeldSignals held;
    return writeInPlace(file_.get(), status, content, former, durability);
}

} // namespace specloom
