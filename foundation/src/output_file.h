#pragma once

#include "foundation/descriptor.h"
#include "foundation/durability.h"
#include "foundation/message.h"

#include <stdexcept>   // std::runtime_error
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom {

/// A file could not be opened for writing. Nothing was touched.
class OpenForWritingError : public std::runtime_error {
  public:
    explicit OpenForWritingError(const Message& message) : std::runtime_error(message.composed()) {}
};

/// A file that gets new content as a whole. Whoever looks at the file, at whatever moment the run is ended or
/// the disk is full, finds the old content or the new one.
///
/// A regular file with one name is replaced by a sibling: a file in the same folder gets the content, the
/// mode, the owner and the extended attributes (with them access control lists), is brought to the disk if it
/// is to outlive a power cut, and renamed. Links are followed, so that a link stays a link. Where that cannot
/// be done (several names, no right to make files in the folder or to give them to the owner, the file is one
/// of the standard streams) the file is written in its place: space is reserved first, termination signals
/// wait, and the old content, as far as it can be read, is put back when writing fails. What is no regular
/// file, and what holds nothing yet and need not outlive a power cut, is simply written to.
class OutputFile {
  public:
    /// Opens the file and creates it, empty, when it is missing. What it holds stays.
    ///
    /// Throws OpenForWritingError with "Failed to open file for writing: {}" and the path, which is UTF-8.
    explicit OutputFile(std::string_view path);

    /// Does nothing when the file holds the content already. To be called once.
    ///
    /// Throws std::runtime_error with "Failed to write file: {}" and the path when the content did not get to
    /// the file whole.
    void replace(std::string_view content, Durability durability = Durability::PowerCut);

  private:
    [[nodiscard]] bool replaceRegular(const struct stat& status, std::string_view content,
                                      Durability durability) const;

    std::string path_;
    Descriptor file_;
};

} // namespace specloom
