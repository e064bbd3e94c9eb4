#include "code_morph/project.h"

#include "code_morph/generated_path.h"
#include "foundation/file_system.h"
#include "foundation/message.h"

#include <filesystem> // std::filesystem::path
#include <stdexcept>  // std::runtime_error

namespace specloom::code_morph::base {
namespace {

/// The file of `files` that could not be saved beside a file at `path`, because one of the two lies where the
/// other needs a folder: the one that would be that folder. Null when there is none.
const std::string* fileInPlaceOfFolder(const Project::Files& files, const std::string& path) {
    const auto below = files.lower_bound(path + '/');
    if (below != files.end() && below->first.starts_with(path + '/'))
        return &path;
    for (std::size_t slash = path.find('/'); slash != std::string::npos; slash = path.find('/', slash + 1)) {
        const auto above = files.find(std::string_view(path).substr(0, slash));
        if (above != files.end())
            return &above->first;
    }
    return nullptr;
}

} // namespace

SourceFile& Project::createSourceFile(std::string_view path) {
    const std::filesystem::path asked = pathFromUtf8(path);
    const std::string key = pathToUtf8(asked.is_relative() ? pathFromUtf8(rootPath_) / asked : asked);
    requirePossiblePath(key);
    if (files_.contains(key))
        throw std::runtime_error(formatMessage("Source file already exists: {}", key));
    if (const std::string* file = fileInPlaceOfFolder(files_, key))
        throw std::runtime_error(formatMessage("Source file stands where a folder is needed: {}", *file));
    return *files_.emplace(key, makeSourceFile(key)).first->second;
}

SourceFile& Project::createSourceFileBelow(std::string_view path) {
    requirePathBelow(path);
    return createSourceFile(path);
}

void Project::saveAll() {
    // Not file by file: what cannot be rendered shall stop the run before anything is written.
    for (const auto& [path, file] : files_)
        file->render();
    for (const auto& [path, file] : files_)
        file->save();
}

std::unique_ptr<SourceFile> Project::makeSourceFile(const std::string& fullPath) {
    return std::make_unique<SourceFile>(*this, fullPath);
}

SourceFile& Project::namedFile(std::string_view name) {
    const auto found = files_.find(name);
    return found != files_.end() ? *found->second : createSourceFile(name);
}

} // namespace specloom::code_morph::base
