#pragma once

#include "foundation/file_system.h"
#include "foundation/message.h"
#include "jv/jv_document.h"
#include "openapi/schema_format.h"

#include <functional>  // std::function
#include <memory>      // std::unique_ptr
#include <stdexcept>   // std::runtime_error
#include <string_view> // std::string_view

namespace specloom::configuration {

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
/// for each command under "commands", and "custom_formats" under "openapi". Members of other names are left
/// alone here; what is done about them in a section is its reader's business.
class ConfigFile {
  public:
    /// Reads a file, given by its UTF-8 path, in place of what was loaded before.
    ///
    /// Throws what jv::loadDocument() throws, and ConfigFileError with
    ///   "Unsupported configuration version: '{}'."  for a version of another text, at that value,
    ///   "Missing configuration version."            without a version that is a string, at the root.
    void load(std::string_view path, const FileSystem& files = LocalFileSystem());

    /// The object under "/commands/{name}", or null when there is none; it lives as long as this file stays
    /// loaded. Throws ConfigFileError "An object is expected for '{}'" with the name when it is of another
    /// kind.
    [[nodiscard]] const jv::JV* commandSection(std::string_view name) const;

    /// The array under "/openapi/custom_formats", or null when there is none; it lives as long as this file
    /// stays loaded. Throws ConfigFileError "An object is expected for '/openapi/custom_formats'" when it is
    /// of another kind. (The text says object although an array is meant.)
    [[nodiscard]] const jv::JV* customFormats() const;

    /// Adds the custom formats, where there are some. Throws what customFormats() and the registry throw.
    void addCustomFormatsTo(openapi::SchemaFormatRegistry& formats) const;

    /// Where a value of the file, or null, stands.
    [[nodiscard]] jv::Location locationOf(const jv::JV* value) const {
        return document_ ? document_->locationOf(value) : jv::Location{};
    }

  private:
    std::unique_ptr<jv::JVDocument> document_; // null until something was loaded
};

/// Loads a file and lets `apply` read its sections. A jv::JVError of either leaves as a ConfigFileError with
/// the same text and the position of the value at fault; all else passes unchanged.
void readConfigFile(std::string_view path, const std::function<void(const ConfigFile&)>& apply,
                    const FileSystem& files = LocalFileSystem());

} // namespace specloom::configuration
