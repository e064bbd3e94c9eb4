#pragma once

#include <filesystem>  // std::filesystem::path
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::test_support {

/// A folder that no other test or run has, removed with all it holds at the end.
class TemporaryFolder {
  public:
    /// Throws std::system_error when it cannot be made.
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    [[nodiscard]] const std::filesystem::path& path() const noexcept { return path_; }
    /// The path of a file or folder in it.
    [[nodiscard]] std::string at(std::string_view name) const { return (path_ / name).string(); }
    /// Writes a file in it; returns its path.
    std::string write(std::string_view name, std::string_view content) const;

  private:
    std::filesystem::path path_;
};

} // namespace specloom::test_support
