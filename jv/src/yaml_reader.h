#pragma once

#include "jv/jv_document.h"

#include <cstddef>     // std::size_t
#include <iosfwd>      // std::istream
#include <memory>      // std::unique_ptr
#include <string_view> // std::string_view

namespace specloom::jv {

/// Containers nested deeper than this are refused: libyaml's work grows with the square of the depth of flow
/// brackets.
inline constexpr std::size_t deepestYaml = 10000;

/// A document with more %TAG directives, or one whose prefix is longer, is refused: libyaml compares each
/// with all before it, and copies the prefix for each value that is tagged with it.
inline constexpr std::size_t mostTagDirectives = 100;
inline constexpr std::size_t longestTagPrefix = 1000; // bytes

/// Reads a YAML stream by way of libyaml (YAML 1.1 syntax) into a document; of several documents the last
/// one.
///
/// Tags are not read. A plain scalar that is exactly "null", "true" or "false" is that, one that is a number
/// for number::Number::tryParse() is that number, every other one is a string, the empty one included; quoted
/// and block scalars are strings. Aliases yield no value: the next scalar takes their place. An empty key
/// counts as none. Arrays and objects carry libyaml's start mark as position, line and column counted from 0;
/// scalars carry none.
///
/// Throws std::runtime_error with "Failed to parse YAML" for any fault of the text, for a document that is no
/// array and no object, for a stream without a document, and for more than deepestYaml nested containers;
/// with "YAML has more than 100 %TAG directives" and "YAML has a %TAG directive with more than 1000 bytes".
[[nodiscard]] std::unique_ptr<JVDocument> readYAML(std::istream& stream);
/// The same for a text.
[[nodiscard]] std::unique_ptr<JVDocument> parseYAML(std::string_view text);

} // namespace specloom::jv
