#pragma once

#include "code_morph/node.h"
#include "code_morph/source_file.h"
#include "foundation/text_tables.h"

#include <functional>  // std::less
#include <map>         // std::map
#include <memory>      // std::unique_ptr, std::make_unique
#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::move

namespace specloom {
class FileSystem;
}

namespace specloom::code_morph::base {

/// A generated project: source files below one folder, apart from the disk until saveAll().
class Project : public Node {
  public:
    /// `fileSystem` outlives the project.
    explicit Project(FileSystem& fileSystem) noexcept : fileSystem_(&fileSystem) {}

    [[nodiscard]] FileSystem& fileSystem() const noexcept { return *fileSystem_; }
    /// Empty at first: paths are then relative to the working directory.
    [[nodiscard]] const std::string& rootPath() const noexcept { return rootPath_; }
    void setRootPath(std::string path) { rootPath_ = std::move(path); }

    /// By full path in UTF-8, in the order of its bytes.
    using Files = std::map<std::string, std::unique_ptr<SourceFile>, std::less<>>;
    [[nodiscard]] const Files& files() const noexcept { return files_; }

    /// Adds an empty file, which stays where it is as long as the project lives. A relative `path` is one
    /// below rootPath(), an absolute one stays as it is. Paths are not normalised: "a/b" and "a//b" are two
    /// files. For paths that the program or its user chose.
    ///
    /// Throws std::runtime_error with "Source file already exists: {}" and the full path; with "Source file
    /// stands where a folder is needed: {}" and its full path, when a file lies below another; and what
    /// requirePossiblePath() throws for the full path.
    virtual SourceFile& createSourceFile(std::string_view path);

    /// The same for a path that has names of a document in it: throws what requirePathBelow() throws too.
    SourceFile& createSourceFileBelow(std::string_view path);

    /// Renders all files, then saves them in the order of their paths. The first failure ends it and is
    /// thrown; files that were written before stay. A failure to render leaves the file system as it was.
    void saveAll();

  protected:
    /// The file that createSourceFile() adds. Languages make one of their own.
    [[nodiscard]] virtual std::unique_ptr<SourceFile> makeSourceFile(const std::string& fullPath);

    /// The file of that name, such as "package.json", created when it is missing. It is looked up by the bare
    /// name, though files stand under their full path: with a rootPath() it is to be asked for once, and
    /// the second time throws as createSourceFile() does.
    SourceFile& namedFile(std::string_view name);

  private:
    /// Throws when a file stands in the place of one of them.
    void noteFoldersOf(std::string_view path);

    FileSystem* fileSystem_;
    std::string rootPath_;
    Files files_;
    TextSet folders_; ///< those in which files lie, and in which these lie, and so on
};

/// A project all of whose files are of the class `File`, which is what languages derive theirs from.
template <typename File>
class ProjectOf : public Project {
  public:
    using Project::Project;

    File& createSourceFile(std::string_view path) override {
        return dynamic_cast<File&>(Project::createSourceFile(path));
    }
    File& createSourceFileBelow(std::string_view path) {
        return dynamic_cast<File&>(Project::createSourceFileBelow(path));
    }

  protected:
    [[nodiscard]] std::unique_ptr<SourceFile> makeSourceFile(const std::string& fullPath) override {
        return std::make_unique<File>(*this, fullPath);
    }
    File& namedFile(std::string_view name) { return dynamic_cast<File&>(Project::namedFile(name)); }
};

} // namespace specloom::code_morph::base
