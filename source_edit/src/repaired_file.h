#pragma once

#include "foundation/notes.h"
#include "source_edit/apply.h"

#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::source_edit {

/// A file whose document was repaired, still unwritten.
class RepairedFile {
  public:
    /// Makes the edits in the text of the file at `path` (UTF-8), from which their source was read.
    ///
    /// Throws std::runtime_error, each with the path:
    ///   "Cannot repair {}: it is no regular file"
    ///   "Cannot repair {}: it has YAML aliases, the first in line {}, and what they stand for is not read"
    ///   "Cannot repair {}: an object has a key twice, and one of its values is not read"
    ///   "Cannot repair {}: its text is not UTF-8"
    ///   "Cannot repair {}: its text would not read as it should afterwards"
    /// and what LocalFileSystem::readFile() throws.
    /// `moved` is told what applyEdits() tells.
    RepairedFile(std::string_view path, const Edits& edits, const PositionSink& moved = {});

    /// The repairs by unifiedDiff().
    [[nodiscard]] std::string diff() const;
    /// Writes the file as OutputFile does, and throws what that throws.
    void write() const;
    /// Tells which values had to be rendered anew.
    void tell(const Notes& notes) const;

  private:
    std::string path_;
    std::string before_;
    EditedText edited_;
};

} // namespace specloom::source_edit
