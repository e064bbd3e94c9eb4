#pragma once

#include <span>        // std::span
#include <string_view> // std::string_view

namespace specloom::openapi_i18n {

/// The texts that a documentation site has of itself, in English, each once: titles of pages and headings,
/// and what its components say. "{}" in one stands for a name. A locale file translates them like the texts
/// of a document.
[[nodiscard]] std::span<const std::string_view> siteTexts() noexcept;

} // namespace specloom::openapi_i18n
