#pragma once

#include <functional>  // std::function
#include <memory>      // std::unique_ptr
#include <stdexcept>   // std::runtime_error
#include <string>      // std::string
#include <string_view> // std::string_view

#include "foundation/message.h"
#include "jv/jv_document.h"

namespace specloom::cli {

/// A configuration file that can be read but not be used.
class ConfigFileError : public std::runtime_error {
  public:
    ConfigFileError(const Message& message, jv::Pos pos)
        : std::runtime_error(message.composed()), pos_(pos) {}

    /// Where the value at fault begins, counted as the format's reader counts; -1, -1 when that is not known.
    [[nodiscard]] jv::Pos pos() const noexcept { return pos_; }

  private:
    jv::Pos pos_;
};

/// The file behind --config: JSON or YAML by its extension, one object with a "version" of "1.0", a section
/// for each command under "commands", and "custom_formats" under "openapi".
class ConfigFile {
  public:
    /// Reads a file, given by its UTF-8 path, in place of what was loaded before.
    ///
    /// Throws what jv::loadDocument() throws, and ConfigFileError with
    ///   "Unsupported configuration version: '{}'."  for a version of another text, at that value,
    ///   "Missing configuration version."            without a version that is a string, at the root.
    void load(std::string_view path);

    /// The object under "/commands/{name}", or null when there is none; it lives as long as this file stays
    /// loaded. Throws ConfigFileError "An object is expected for '{}'" with the name when it is of another
    /// kind.
    [[nodiscard]] const jv::JV* commandSection(std::string_view name) const;

    /// The array under "/openapi/custom_formats", or null when there is none; it lives as long as this file
    /// stays loaded. Throws ConfigFileError "An object is expected for '/openapi/custom_formats'" when it is
    /// of another kind. (The text says object although an array is meant.)
    [[nodiscard]] const jv::JV* customFormats() const;

    /// Where a value of the file, or null, stands.
    [[nodiscard]] jv::Location locationOf(const jv::JV* value) const {
        return document_ ? document_->locationOf(value) : jv::Location{};
    }

  private:
    std::unique_ptr<jv::JVDocument> document_; // null until something was loaded
};

/// Loads `path` into `file` and runs `apply`, in which a command reads its section. A jv::JVError of either
/// leaves as a ConfigFileError with the same text and the position of the value at fault; all else passes
/// unchanged.
void readConfigFile(ConfigFile& file, std::string_view path, const std::function<void()>& apply);

} // namespace specloom::cli
