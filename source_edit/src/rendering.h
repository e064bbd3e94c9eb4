#pragma once

#include "jv/deser.h"
#include "jv/jv_document.h"

#include <cstddef>     // std::size_t
#include <string>      // std::string
#include <string_view> // std::string_view

// Texts of keys and values that come into a document.
namespace specloom::source_edit {

/// What the text around a new key or value asks of it.
struct Surroundings {
    jv::DocumentFormat format = jv::DocumentFormat::Json;
    bool inFlow = true;           ///< in brackets, as all of JSON is
    std::string_view lineEnd;     ///< of the document
    std::string_view indentation; ///< in front of the children of the container around it
};

/// A key, or a value that is a string, with the quotes of `former`, its spelling so far, if it had any. In
/// YAML a text that would be something else without quotes gets some.
[[nodiscard]] std::string renderedString(std::string_view text, std::string_view former,
                                         const Surroundings& around);
/// The root of a document, as the member of a mapping or the element of a sequence that stands on the line of
/// its key or dash, behind the white space that follows it; without a line end behind it. Throws what the
/// writers throw.
[[nodiscard]] std::string renderedValue(const jv::JVDocument& value, const Surroundings& around);
/// The same as a text on its own, which begins in the column `indentation` stands for.
[[nodiscard]] std::string renderedBlock(const jv::JVDocument& value, const Surroundings& around);

} // namespace specloom::source_edit
