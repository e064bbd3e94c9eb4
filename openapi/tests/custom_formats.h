#pragma once

#include "openapi/reader.h"

#include <memory>      // std::unique_ptr
#include <set>         // std::set
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi {

/// A document that was read, or why not.
struct CorpusDocument {
    SchemaFormatRegistry formats; ///< before the result, which refers to them
    std::set<std::string> customFormats;
    std::unique_ptr<ReadResult> result; ///< null when the document was refused
    std::string refusal;
};

/// The names in the lines "Unknown format: {} at ({}, {})" of a report of the reader.
[[nodiscard]] std::set<std::string> unknownFormatsIn(std::string_view report);

/// Reads a file. When the report names unknown formats, reads it again with all of these as formats of texts:
/// what is refused then has other reasons, and no format that the report did not name.
[[nodiscard]] std::unique_ptr<CorpusDocument> readWithCustomFormats(const std::string& path);

} // namespace specloom::openapi
