#include "foundation/descriptor.h"

#include <cerrno> // errno

#include <fcntl.h>
#include <unistd.h>

namespace specloom {

Descriptor::~Descriptor() {
    if (isOpen())
        close(descriptor_);
}

Descriptor openDescriptor(const std::filesystem::path& path, int flags, mode_t mode) {
    for (;;) {
        Descriptor descriptor(open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, mode));
        if (descriptor.isOpen() || errno != EINTR)
            return descriptor;
    }
}

bool writeWhole(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(descriptor, bytes.data(), bytes.size());
        if (written >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(written));
        else if (errno != EINTR)
            return false;
    }
    return true;
}

ssize_t readSome(int descriptor, char* buffer, std::size_t size) {
    for (;;) {
        const ssize_t count = read(descriptor, buffer, size);
        if (count >= 0 || errno != EINTR)
            return count;
    }
}

bool isSameFile(const struct stat& a, const struct stat& b) noexcept {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

} // namespace specloom
