#pragma once

#include <span>        // std::span
#include <string_view> // std::string_view

namespace specloom::openapi_generator::doc_html {

/// A component of the template package, which gives a site its look.
struct TemplateImport {
    std::string_view key;
    std::string_view path; ///< in the package
};

[[nodiscard]] std::span<const TemplateImport> templateImports() noexcept;

} // namespace specloom::openapi_generator::doc_html
