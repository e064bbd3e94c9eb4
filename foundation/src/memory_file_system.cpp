#include "foundation/memory_file_system.h"

#include "foundation/input.h"
#include "foundation/message.h"
#include "foundation/output_file.h"

#include <filesystem>   // std::filesystem::path
#include <ios>          // std::ios
#include <sstream>      // std::istringstream
#include <stdexcept>    // std::runtime_error
#include <system_error> // std::errc

namespace specloom {
namespace {

class MemoryInput final : public Input {
  public:
    explicit MemoryInput(const std::string& content)
        : size_(content.size()), stream_(content, std::ios::in | std::ios::binary) {}

    [[nodiscard]] std::istream& stream() noexcept override { return stream_; }
    [[nodiscard]] std::size_t size() const noexcept override { return size_; }
    void requireBounds() const override {}

  private:
    std::size_t size_;
    std::istringstream stream_;
};

/// Of a file; ends in a slash where only a folder can be meant.
std::string normalFile(const std::filesystem::path& path) {
    return pathToUtf8(path.lexically_normal());
}

std::string normalFolder(const std::filesystem::path& path) {
    std::string folder = path.empty() ? "." : normalFile(path);
    if (folder.size() > 1 && folder.back() == '/')
        folder.pop_back();
    return folder;
}

} // namespace

MemoryFileSystem::MemoryFileSystem(
    std::initializer_list<std::pair<std::string_view, std::string_view>> files) {
    for (const auto& [path, content] : files) {
        createDirectories(path);
        writeFile(path, content);
    }
}

/// The content, or null when no file stands there.
const std::string* MemoryFileSystem::find(std::string_view path) const {
    const auto file = files_.find(normalFile(pathFromUtf8(path)));
    return file == files_.end() ? nullptr : &file->second;
}

bool MemoryFileSystem::exists(std::string_view path) const {
    return find(path) != nullptr || (!path.empty() && folders_.contains(normalFolder(pathFromUtf8(path))));
}

std::string MemoryFileSystem::readFile(std::string_view path) const {
    if (const std::string* content = find(path); content != nullptr)
        return *content;
    if (exists(path))
        throw fileSystemError("file_size", path, std::make_error_code(std::errc::is_a_directory));
    throw std::runtime_error(formatMessage("File does not exist: {}", path));
}

std::unique_ptr<Input> MemoryFileSystem::open(std::string_view path) const {
    const std::string* content = find(path);
    return content == nullptr ? nullptr : std::make_unique<MemoryInput>(*content);
}

void MemoryFileSystem::createDirectories(std::string_view path) {
    const std::filesystem::path folder = pathFromUtf8(path).parent_path();
    std::filesystem::path reached;
    for (const std::filesystem::path& component : pathFromUtf8(normalFolder(folder))) {
        reached /= component;
        const std::string name = pathToUtf8(reached);
        if (files_.contains(name))
            throw fileSystemError("create_directories", pathToUtf8(folder),
                                  std::make_error_code(std::errc::not_a_directory));
        folders_.insert(name);
    }
}

void MemoryFileSystem::writeFile(std::string_view path, std::string_view content) {
    const std::filesystem::path file = pathFromUtf8(path).lexically_normal();
    if (!file.has_filename() || folders_.contains(pathToUtf8(file)) ||
        !folders_.contains(normalFolder(file.parent_path())))
        throw OpenForWritingError(formatMessage("Failed to open file for writing: {}", path));
    files_.insert_or_assign(pathToUtf8(file), std::string(content));
}

} // namespace specloom
