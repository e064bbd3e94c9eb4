#include "foundation/file_system.h"

#include "foundation/input_file.h"
#include "foundation/message.h"
#include "foundation/output_file.h"

#include <istream>      // std::istream
#include <stdexcept>    // std::runtime_error
#include <system_error> // std::error_code
#include <utility>      // std::move

namespace fs = std::filesystem;

namespace specloom {
namespace {

std::runtime_error failure(std::string_view text, std::string_view path) {
    return std::runtime_error(formatMessage("{}: {}", text, path));
}

/// Appends the rest of `stream` to `content`; false when a read fails before the end.
bool readToEnd(std::istream& stream, std::string& content) {
    // Blocks instead of std::istreambuf_iterator or rdbuf(): those swallow a failing read, the former is slow
    // too.
    char block[1 << 16];
    while (stream.read(block, sizeof block) || stream.gcount() > 0)
        content.append(block, static_cast<std::size_t>(stream.gcount()));
    return !stream.bad();
}

} // namespace

fs::path pathFromUtf8(std::string_view path) {
    return fs::path(std::u8string(path.begin(), path.end()));
}

std::string pathToUtf8(const fs::path& path) {
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

std::string canonicalPath(std::string_view path) {
    std::error_code error;
    const fs::path result = fs::canonical(pathFromUtf8(path), error);
    if (error)
        throw fileSystemError("cannot make canonical path", path, error);
    return pathToUtf8(result);
}

fs::filesystem_error fileSystemError(const char* operation, std::string_view path, std::error_code error) {
    return {operation, pathFromUtf8(messageArgument(path)), error};
}

bool LocalFileSystem::exists(std::string_view path) const {
    const fs::path file = pathFromUtf8(path);
    std::error_code error;
    const bool result = fs::exists(file, error);
    if (error)
        throw fileSystemError("exists", path, error);
    return result;
}

std::string LocalFileSystem::readFile(std::string_view path) const {
    const fs::path file = pathFromUtf8(path);
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (!fs::status_known(status))
        throw fileSystemError("status", path, error);
    if (!fs::exists(status))
        throw failure("File does not exist", path);

    if (fs::is_directory(status)) {
        static_cast<void>(fs::file_size(file, error));
        throw fileSystemError("file_size", path, error);
    }

    InputFile input(path);
    if (!input.isOpen())
        throw failure("Failed to open file for reading", path);
    std::string content;
    content.reserve(input.size());
    if (!readToEnd(input.stream(), content)) {
        input.requireBounds();
        throw failure("Failed to read file", path);
    }
    return content;
}

void LocalFileSystem::createDirectories(std::string_view path) {
    const fs::path folder = pathFromUtf8(path).parent_path();
    if (folder.empty())
        return; // the working directory
    std::error_code error;
    fs::create_directories(folder, error);
    if (error)
        throw fileSystemError("create_directories", pathToUtf8(folder), error);
}

void LocalFileSystem::writeFile(std::string_view path, std::string_view content) {
    OutputFile(path).replace(content, Durability::Run);
}

std::unique_ptr<Input> LocalFileSystem::open(std::string_view path) const {
    auto file = std::make_unique<InputFile>(path);
    return file->isOpen() ? std::move(file) : nullptr;
}

} // namespace specloom
