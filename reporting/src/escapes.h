#pragma once

#include "foundation/escapes.h"
#include "foundation/printable.h"

#include <string>      // std::string
#include <string_view> // std::string_view

// What each form of reports does to a text of unknown origin. Lines, and XML and YAML that take texts as they
// are, need printable(), a line's beginning printableAtLineStart(), and JSON, whose writer has escapes of its
// own, toValidUtf8(). In what people look at, a text must neither act nor be taken for markup:
namespace specloom::reporting {

using EscapeText = std::string (*)(std::string_view text);

[[nodiscard]] inline std::string htmlText(std::string_view text) {
    return escapeHtml(printable(text));
}

/// One line that Markdown shows as it is.
[[nodiscard]] inline std::string markdownText(std::string_view text) {
    return escapeMarkdown(printable(text));
}

} // namespace specloom::reporting
