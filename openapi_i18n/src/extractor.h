#pragma once

#include "foundation/notes.h"

#include <iosfwd>      // std::ostream
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_i18n {

/// Writes the texts of a document that are to be translated, and behind them those of a documentation site
/// itself, as a locale file.
class Extractor {
  public:
    /// The texts go to `out` as JSON, unless an output path is set; the note goes to `notes`.
    Extractor(std::ostream& out, Notes notes) : out_(out), notes_(notes) {}

    /// A file, JSON or YAML by its extension. When it is there, its translations are kept.
    void setOutputPath(std::string_view path) { outputPath_ = path; }
    /// Leaves out translations of texts that do not occur any more.
    void setDropsObsolete(bool dropsObsolete) noexcept { dropsObsolete_ = dropsObsolete; }

    /// Reads a document and writes its texts, with the note
    ///   "specloom: note: {} new, {} kept, {} obsolete"
    /// Formats that schemas name need not be known. Throws std::runtime_error "Unknown file format: {}" for
    /// an output path with another extension, "{}: {}" with the output path and the reason for an output
    /// that is there and no locale file, and what openapi::readFile() and OutputFile throw. What was there
    /// stays as it is then.
    void run(std::string_view path) const;

  private:
    std::ostream& out_;
    Notes notes_;
    std::optional<std::string> outputPath_;
    bool dropsObsolete_ = false;
};

} // namespace specloom::openapi_i18n
