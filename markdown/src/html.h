#pragma once

#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::markdown {

struct HtmlOptions {
    /// How many levels lower headings stand than the text says; none goes below the sixth.
    unsigned headingShift = 0;
    /// With it headings get ids: this, then the heading's text in lower case (of ASCII) with "-" for each
    /// blank and nothing for other ASCII characters than letters, digits, "-" and "_", and "-1", "-2" and so
    /// on where an id of the text is taken. A text of unknown origin should have a prefix, since scripts of a
    /// page find its elements by their ids.
    std::optional<std::string> headingIdPrefix;
    bool tables = false; ///< as ParseOptions has it
};

/// A text in CommonMark (0.30, without extensions but tables, where they are asked for) as HTML that a page
/// can hold and that runs nothing, however the text was made:
///   - links and images whose destination is not safe (isSafeDestination()) are their text alone;
///   - of raw HTML there remain tags for the form of texts and tables, links and images, without their
///     attributes but href, src, title, alt, colspan and rowspan, and with the same rule for destinations.
///     Any other tag is shown as text, comments and declarations are left out. What is opened in an element
///     is closed in it, and what was not opened is not closed, so that the result is balanced;
///   - braces are character references, as by escapeHtml(), so that it can stand in component languages.
/// The result is a sequence of block elements, each with a line feed behind it; empty for an empty text. It
/// is in UTF-8 if the text is.
[[nodiscard]] std::string toHtml(std::string_view text, const HtmlOptions& options = {});

} // namespace specloom::markdown
