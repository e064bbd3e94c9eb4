#include "code_morph/source_file.h"

#include "code_morph/project.h"
#include "foundation/file_system.h"

#include <utility> // std::move

namespace specloom::code_morph::base {

SourceFile::SourceFile(Project& project, std::string path) : Node(&project), path_(std::move(path)) {}

void SourceFile::write(std::string& out) const {
    if (&out != &text_)
        out = text_;
}

void SourceFile::save() {
    FileSystem& fileSystem = dynamic_cast<Project&>(*parent()).fileSystem();
    fileSystem.createDirectories(path_);
    fileSystem.writeFile(path_, text_);
}

} // namespace specloom::code_morph::base
