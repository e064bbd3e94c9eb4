#pragma once

#include <filesystem>   // std::filesystem::path
#include <memory>       // std::unique_ptr
#include <string>       // std::string
#include <string_view>  // std::string_view
#include <system_error> // std::error_code

namespace specloom {

class Input;

/// The platform's form of a UTF-8 path. Every path crosses into the platform's calls through this.
[[nodiscard]] std::filesystem::path pathFromUtf8(std::string_view path);

/// The UTF-8 form of a platform path, as the program prints and stores it.
[[nodiscard]] std::string pathToUtf8(const std::filesystem::path& path);

/// `path` from the root of the file system, without links. Throws as std::filesystem::canonical does when
/// nothing stands there.
[[nodiscard]] std::string canonicalPath(std::string_view path);

/// The standard error of an operation on files. Its text is the library's and quotes the path as a message
/// does.
[[nodiscard]] std::filesystem::filesystem_error fileSystemError(const char* operation, std::string_view path,
                                                                std::error_code error);

/// File access as the generators and loaders use it, so that they can run against something other than the
/// disk. All paths are UTF-8. Throws as LocalFileSystem tells.
class FileSystem {
  public:
    virtual ~FileSystem() = default;
    [[nodiscard]] virtual bool exists(std::string_view path) const = 0;
    [[nodiscard]] virtual std::string readFile(std::string_view path) const = 0;
    virtual void createDirectories(std::string_view path) = 0;
    virtual void writeFile(std::string_view path, std::string_view content) = 0;
    /// For what is read as it comes, without a copy of the whole.
    [[nodiscard]] virtual std::unique_ptr<Input> open(std::string_view path) const = 0;
};

/// The disk. "File-system error" is std::filesystem::filesystem_error with the operation named, the path and
/// the platform's error code.
class LocalFileSystem final : public FileSystem {
  public:
    /// Whether something stands at `path`, links followed. A file-system error ("exists") when that cannot be
    /// told.
    [[nodiscard]] bool exists(std::string_view path) const override;

    /// The whole content, byte for byte. What has no size of its own, such as a pipe, is read to its end.
    ///
    /// Throws a file-system error ("status", "file_size") when the file cannot be looked at or is a
    /// directory, and std::runtime_error with "File does not exist: {}", "Failed to open file for reading:
    /// {}" or, when reading breaks off, "Failed to read file: {}", each with the path; and what InputFile
    /// throws for devices and for what is too long.
    [[nodiscard]] std::string readFile(std::string_view path) const override;

    /// Creates the folder that the file `path` is to stand in, with all missing ancestors. The last component
    /// of `path` is the file's own and is not created. A file-system error ("create_directories") on failure.
    void createDirectories(std::string_view path) override;

    /// Creates or replaces the file, as OutputFile does, and throws what that throws; its folder must exist.
    /// It outlives the run, and need not outlive a power cut: what is written here by the thousand is
    /// generated, and can be generated anew.
    void writeFile(std::string_view path, std::string_view content) override;

    /// An InputFile; null when it cannot be opened, as a missing file or a folder. Throws what InputFile
    /// throws.
    [[nodiscard]] std::unique_ptr<Input> open(std::string_view path) const override;
};

} // namespace specloom
