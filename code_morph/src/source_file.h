#pragma once

#include "code_morph/node.h"

#include <string>  // std::string
#include <utility> // std::move

namespace specloom::code_morph::base {

class Project;

/// A file of a generated project, in memory until its project saves it. What fills a template gives it the
/// text as a whole; languages derive from it to give it a structure.
class SourceFile : public Node {
  public:
    /// To be called by Project::makeSourceFile() alone. `path` is the full path under which the file will be
    /// saved, in UTF-8.
    SourceFile(Project& project, std::string path);

    [[nodiscard]] const std::string& path() const noexcept { return path_; }
    [[nodiscard]] const std::string& text() const noexcept { return text_; }
    void setText(std::string text) { text_ = std::move(text); }

    /// Makes `out` the file's text. A language with a structure appends that structure instead.
    void write(std::string& out) const override;

    /// Writes the file into its own text(), which then is what save() writes. To be called once, since a
    /// structure is appended each time.
    void render() { write(text_); }

    /// Creates the folders of path() that are missing, and writes text() to it, in the file system of the
    /// project. Throws what that throws.
    virtual void save();

  private:
    std::string path_;
    std::string text_;
};

} // namespace specloom::code_morph::base
