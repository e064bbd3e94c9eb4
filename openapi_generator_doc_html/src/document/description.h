#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_generator::doc_html {

/// A description, which is Markdown (CommonMark with tables), as HTML that runs nothing, whatever it says:
/// markdown::toHtml(). Headings begin below those of a page's parts.
[[nodiscard]] std::string renderDescription(std::string_view description);

} // namespace specloom::openapi_generator::doc_html
