#pragma once

#include "openapi/reader.h"

#include <filesystem>  // std::filesystem::path
#include <memory>      // std::shared_ptr, std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::test_support {

/// The formats that a refusal names as unknown, added to a registry as formats of strings; their names.
std::vector<std::string> addUnknownFormats(std::string_view refusal, openapi::SchemaFormatRegistry& formats);

/// A document as a tree, or why it was refused.
struct ReadTree {
    std::shared_ptr<openapi::SchemaFormatRegistry> formats;
    std::unique_ptr<openapi::ReadResult> result; ///< null when refused
    std::vector<std::string> unknownFormats;     ///< those that had to be added
    std::string refusal;
};

/// Reads a document. When it is refused for unknown formats, these are taken from the refusal and it is read
/// once more: a second refusal for a format would show that the first named not all of them.
[[nodiscard]] ReadTree readTree(const std::filesystem::path& path);

} // namespace specloom::test_support
