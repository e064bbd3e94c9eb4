#pragma once

#include "jv/jv_document.h"
#include "jv/sorted_properties.h"

#include <cstdint>     // std::int32_t
#include <functional>  // std::function
#include <iosfwd>      // std::istream, std::ostream
#include <memory>      // std::unique_ptr
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom {
class FileSystem;
}

namespace specloom::jv {

enum class DocumentFormat : std::uint8_t { Json = 0, Yaml = 1 };

struct LoadOptions {
    std::optional<DocumentFormat> format; ///< when absent, taken from the file's extension
    /// Given the text of a reference, returns the document to put in its place, or null to leave it. When
    /// empty, references stay as they are.
    std::function<std::unique_ptr<JVDocument>(std::string_view reference)> refLoader;
};

struct SaveOptions {
    std::optional<DocumentFormat> format; ///< when absent, taken from the file's extension
    std::int32_t indent = 2;              ///< spaces for each level
    PropertySorter sorter;                ///< when empty, the document's own order
};

struct LoadedDocument {
    std::unique_ptr<JVDocument> document;
    DocumentFormat format; ///< that was read
};

// Paths are UTF-8.

/// By the extension, whatever its case: ".json", ".yaml" or ".yml".
[[nodiscard]] std::optional<DocumentFormat> formatFromPath(std::string_view path);
/// ".json" or ".yaml".
[[nodiscard]] std::string_view extensionOf(DocumentFormat format);

/// Reads a file. Throws std::runtime_error with "Cannot open file: " and the path (also for a folder), with
/// "Unsupported file format: " and the path, what FileSystem::open() throws, and what parseDocument() throws.
/// The file is opened first.
[[nodiscard]] LoadedDocument loadDocument(const FileSystem& files, std::string_view path,
                                          const LoadOptions& options = {});
/// From the disk.
[[nodiscard]] LoadedDocument loadDocument(std::string_view path, const LoadOptions& options = {});

/// Reads a text. Throws what readJSON() and readYAML() throw, JVError "A string value is expected for
/// '$ref'." when there is a refLoader and a reference is no text, and std::bad_optional_access without a
/// format.
///
/// An object whose only member is "$ref" is a reference. Where the refLoader returns a document, the object
/// becomes a deep copy of its root; it keeps its position and pointer, while its new children have neither
/// until the next JVDocument::reindex(). References inside loaded documents are their loader's business.
[[nodiscard]] std::unique_ptr<JVDocument> parseDocument(std::string_view text, const LoadOptions& options);
/// The same on an open stream.
[[nodiscard]] std::unique_ptr<JVDocument> readDocument(std::istream& stream, const LoadOptions& options);

/// Writes a file as OutputFile does; the text is complete before the file is opened. Throws
/// std::runtime_error with "Unsupported file format: " and the path, "Failed to open file: " and the path,
/// "Failed to write file: " and the path, and what the writers throw.
void saveDocument(const JVDocument& document, std::string_view path, const SaveOptions& options = {});
/// Writes to a stream; what the stream makes of it is the caller's to check. Needs a format.
void writeDocument(const JVDocument& document, std::ostream& stream, const SaveOptions& options);
/// The text of a document with these options. Needs a format.
[[nodiscard]] std::string documentToText(const JVDocument& document, const SaveOptions& options);
/// With an indent of 2 and the document's own order.
[[nodiscard]] std::string documentToText(const JVDocument& document, DocumentFormat format);

} // namespace specloom::jv
