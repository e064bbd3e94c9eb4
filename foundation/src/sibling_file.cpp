#include "foundation/sibling_file.h"

#include "foundation/descriptor.h"
#include "foundation/held_signals.h"

#include <cerrno>       // errno
#include <cstdio>       // renameat
#include <optional>     // std::optional
#include <string>       // std::string
#include <system_error> // std::error_code
#include <vector>       // std::vector

#include <fcntl.h>
#include <fmt/format.h>
#include <linux/magic.h> // PROC_SUPER_MAGIC
#include <sys/random.h>
#include <sys/vfs.h> // statfs
#include <sys/xattr.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace specloom {
namespace {

constexpr const char* accessControlList = "system.posix_acl_access";

fs::path folderOf(const fs::path& path) {
    const fs::path folder = path.parent_path();
    return folder.empty() ? fs::path(".") : folder;
}

/// The name behind all links. None for links that lead to an open descriptor, such as /dev/stdout: whoever
/// holds it wants to find the content there.
std::optional<fs::path> behindLinks(fs::path path) {
    constexpr int mostLinks = 40; // as the kernel has it
    for (int count = 0; count < mostLinks; ++count) {
        std::error_code error;
        const fs::path target = fs::read_symlink(path, error);
        if (error == std::errc::invalid_argument) // no link
            return path;
        struct statfs system {};
        if (error || statfs(folderOf(path).c_str(), &system) != 0 || system.f_type == PROC_SUPER_MAGIC)
            return std::nullopt;
        path = path.parent_path() / target;
    }
    return std::nullopt;
}

struct Attribute {
    std::string name;
    std::string value;
};

/// What `call` (of a buffer and its size) gives; nothing on failure.
template <typename Call>
std::optional<std::string> sized(Call call) {
    for (;;) {
        const ssize_t size = call(nullptr, 0);
        if (size < 0)
            return std::nullopt;
        std::string bytes(static_cast<std::size_t>(size), '\0');
        const ssize_t got = call(bytes.data(), bytes.size());
        if (got >= 0) {
            bytes.resize(static_cast<std::size_t>(got));
            return bytes;
        }
        if (errno != ERANGE) // else it grew in between
            return std::nullopt;
    }
}

std::optional<std::string> attributeOf(int file, const std::string& name) {
    return sized([&](char* bytes, std::size_t size) { return fgetxattr(file, name.c_str(), bytes, size); });
}

/// None when they cannot be read.
std::optional<std::vector<Attribute>> attributesOf(int file) {
    std::vector<Attribute> attributes;
    const auto names = sized([&](char* bytes, std::size_t size) { return flistxattr(file, bytes, size); });
    if (!names)
        return errno == ENOTSUP ? std::optional(attributes) : std::nullopt;
    for (std::size_t begin = 0; begin < names->size();) {
        std::string name = names->c_str() + begin;
        begin += name.size() + 1;
        std::optional<std::string> value = attributeOf(file, name);
        if (!value)
            return std::nullopt;
        attributes.push_back({std::move(name), *std::move(value)});
    }
    return attributes;
}

/// A new file in a folder, removed at the end unless it was renamed.
class Sibling {
  public:
    explicit Sibling(int folder) : folder_(folder), file_(create()) {}
    ~Sibling() {
        if (file_.isOpen() && !isRenamed_)
            unlinkat(folder_, name_.c_str(), 0);
    }
    Sibling(const Sibling&) = delete;
    Sibling& operator=(const Sibling&) = delete;

    [[nodiscard]] bool isOpen() const { return file_.isOpen(); }

    /// Makes it look like the file that it is to replace.
    [[nodiscard]] bool adopt(const struct stat& status, const std::vector<Attribute>& attributes) const {
        struct stat own {};
        if (fstat(file_.get(), &own) != 0)
            return false;
        if ((own.st_uid != status.st_uid || own.st_gid != status.st_gid) &&
            fchown(file_.get(), status.st_uid, status.st_gid) != 0)
            return false;
        // The folder may have given it a list that the other file has not; where there is none, this fails.
        fremovexattr(file_.get(), accessControlList);
        for (const auto& [name, value] : attributes) {
            // A label that the system gives by itself need not be ours to set.
            if (fsetxattr(file_.get(), name.c_str(), value.data(), value.size(), 0) != 0 &&
                attributeOf(file_.get(), name) != value)
                return false;
        }
        return fchmod(file_.get(), status.st_mode & 07777) == 0; // last: a new owner takes some bits away
    }

    [[nodiscard]] bool write(std::string_view content, Durability durability) const {
        return writeWhole(file_.get(), content) && settle(file_.get(), durability);
    }

    [[nodiscard]] bool renameTo(const fs::path& name) {
        isRenamed_ = renameat(folder_, name_.c_str(), folder_, name.c_str()) == 0;
        return isRenamed_;
    }

  private:
    Descriptor create() {
        constexpr int mostTries = 100;
        for (int count = 0; count < mostTries; ++count) {
            std::uint64_t random = 0; // nobody is to guess the name and put a link there
            if (getrandom(&random, sizeof random, 0) != sizeof random)
                break;
            name_ = fmt::format(".specloom-{:016x}.tmp", random);
            const int file =
                openat(folder_, name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
            if (file >= 0 || (errno != EEXIST && errno != EINTR))
                return Descriptor(file);
        }
        return Descriptor();
    }

    int folder_;
    std::string name_;
    Descriptor file_;
    bool isRenamed_ = false;
};

} // namespace

Replacement replaceBySibling(const fs::path& path, int original, const struct stat& status,
                             std::string_view content, Durability durability) {
    const std::optional<fs::path> place = behindLinks(path);
    if (!place)
        return Replacement::Impossible;
    const Descriptor folder = openDescriptor(folderOf(*place), O_RDONLY | O_DIRECTORY);
    const fs::path name = place->filename();
    struct stat named {};
    if (!folder.isOpen() || fstatat(folder.get(), name.c_str(), &named, AT_SYMLINK_NOFOLLOW) != 0 ||
        !isSameFile(named, status))
        return Replacement::Impossible;
    const std::optional<std::vector<Attribute>> attributes = attributesOf(original);
    if (!attributes)
        return Replacement::Impossible;

    const HeldSignals held; // none leaves the sibling behind
    Sibling sibling(folder.get());
    if (!sibling.isOpen() || !sibling.adopt(status, *attributes))
        return Replacement::Impossible;
    if (!sibling.write(content, durability))
        return Replacement::Failed;
    if (!sibling.renameTo(name))
        return Replacement::Impossible;
    static_cast<void>(settle(folder.get(), durability)); // either name leads to a whole file
    return Replacement::Done;
}

bool settle(int descriptor, Durability durability) {
    if (durability == Durability::Run) {
        const int copy = dup(descriptor);
        return copy >= 0 && close(copy) == 0; // only here do network file systems tell that they have no room
    }
    while (fsync(descriptor) != 0) {
        if (errno != EINTR)
            return errno == EINVAL || errno == ENOTSUP || errno == ENOSYS;
    }
    return true;
}

} // namespace specloom
