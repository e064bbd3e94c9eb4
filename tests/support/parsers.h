#pragma once

#include "jv/jv_document.h"
#include "test_support/tree.h"

#include <filesystem>  // std::filesystem::path
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::test_support {

// The judges: parsers that have nothing in common with ours. Those that return a tree throw
// std::runtime_error for a faulty text.

/// By nlohmann's parser.
[[nodiscard]] Tree parseJsonIndependently(std::string_view text);
/// By yaml-cpp's parser. Plain scalars are what the core schema of YAML 1.2.2 (section 10.3) makes of them;
/// of an alias the anchored value is repeated.
[[nodiscard]] Tree parseYamlIndependently(std::string_view text);
/// By the one that the file's extension asks for.
[[nodiscard]] Tree parseFileIndependently(const std::filesystem::path& path);

/// Why a text is no well-formed XML (XML 1.0, section 2.1), by expat's parser; empty when it is. Names of
/// characters that HTML defines are known.
[[nodiscard]] std::string markupFault(std::string_view text);

/// What our values say, with the key order in which they would be written.
[[nodiscard]] Tree treeOf(const jv::JVDocument& document);

} // namespace specloom::test_support
