#include "code_morph/project.h"

#include "code_morph/generated_path.h"
#include "foundation/file_system.h"
#include "foundation/message.h"

#include <filesystem> // std::filesystem::path
#include <stdexcept>  // std::runtime_error
#include <vector>     // std::vector

namespace specloom::code_morph::base {
namespace {

void refuseInPlaceOfFolder(std::string_view path) {
    throw std::runtime_error(formatMessage("Source file stands where a folder is needed: {}", path));
}

} // namespace

void Project::noteFoldersOf(std::string_view path) {
    std::vector<std::string_view> unknown;
    for (std::size_t slash = path.rfind('/'); slash != std::string_view::npos && slash > 0;
         slash = path.rfind('/', slash - 1)) {
        const std::string_view folder = path.substr(0, slash);
        if (folders_.contains(folder))
            break; // it has no file in its place, and neither has what it lies in
        if (files_.contains(folder))
            refuseInPlaceOfFolder(folder);
        unknown.push_back(folder);
    }
    folders_.insert(unknown.begin(), unknown.end());
}

SourceFile& Project::createSourceFile(std::string_view path) {
    const std::filesystem::path asked = pathFromUtf8(path);
    const std::string key = pathToUtf8(asked.is_relative() ? pathFromUtf8(rootPath_) / asked : asked);
    requirePossiblePath(key);
    if (files_.contains(key))
        throw std::runtime_error(formatMessage("Source file already exists: {}", key));
    if (folders_.contains(key))
        refuseInPlaceOfFolder(key);
    noteFoldersOf(key);
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
