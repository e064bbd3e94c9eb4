#pragma once

#include "foundation/file_system.h"

#include <functional>       // std::less
#include <initializer_list> // std::initializer_list
#include <map>              // std::map
#include <memory>           // std::unique_ptr
#include <set>              // std::set
#include <string>           // std::string
#include <string_view>      // std::string_view
#include <utility>          // std::pair

namespace specloom {

/// Files in memory: what is rendered whole before the first byte gets to the disk, and what stands in for the
/// disk in tests. It does and throws what LocalFileSystem does, in the same words, as far as that can happen
/// to memory.
///
/// Paths are taken by their text: "a/./b" and "a//b" are "a/b", and "a/../b" is "b" whether or not there is
/// an "a", since nothing here is a link. Relative ones count from a working folder, which exists from the
/// beginning as the root does; those that leave it ("../a") have folders of their own.
class MemoryFileSystem final : public FileSystem {
  public:
    MemoryFileSystem() = default;
    /// With files of these paths and contents, and the folders that they stand in.
    MemoryFileSystem(std::initializer_list<std::pair<std::string_view, std::string_view>> files);

    [[nodiscard]] bool exists(std::string_view path) const override;
    [[nodiscard]] std::string readFile(std::string_view path) const override;
    void createDirectories(std::string_view path) override;
    void writeFile(std::string_view path, std::string_view content) override;
    /// Of the content as it is now, whatever the file holds later.
    [[nodiscard]] std::unique_ptr<Input> open(std::string_view path) const override;

    /// Contents by path, in byte-wise order of the paths, which are as short as they can be said.
    using Files = std::map<std::string, std::string, std::less<>>;
    [[nodiscard]] const Files& files() const noexcept { return files_; }

  private:
    [[nodiscard]] const std::string* find(std::string_view path) const;

    Files files_;
    std::set<std::string, std::less<>> folders_{".", "/"};
};

} // namespace specloom
