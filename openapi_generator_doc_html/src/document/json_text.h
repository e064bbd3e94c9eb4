#pragma once

#include "jv/jv.h"

#include <cstddef> // std::size_t
#include <string>  // std::string

namespace specloom::openapi_generator::doc_html {

enum class JsonForm {
    Compact,   ///< without any white space
    Indented,  ///< by 2 spaces, without a line end behind it
    JavaScript ///< indented, as an expression of JavaScript: a member "__proto__" is one like the others
};

/// Arrays and objects within so many others are written compactly, or indentation would be most of a text.
inline constexpr std::size_t deepestIndented = 100;

/// Any value of a document as JSON (RFC 8259), the members of objects in the order in which they were read.
/// What JSON has no number for is null.
[[nodiscard]] std::string jsonText(const jv::JV& value, JsonForm form);

} // namespace specloom::openapi_generator::doc_html
