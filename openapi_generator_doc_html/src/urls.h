#pragma once

#include "openapi_generator_doc_html/configuration.h"
#include "openapi_generator_doc_html/naming.h"

#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view

// Where the files of a site stand, and under which URLs its pages answer. A locale is one of the
// configuration's, or none in a site without any.
namespace specloom::openapi_generator::doc_html {

using Locale = std::optional<std::string>;

/// What the paths of a locale have in front of the others: the locale, or nothing for the default one without
/// a prefix and without a locale. Throws std::runtime_error "Not in multi-language mode" for a locale where
/// there are none.
[[nodiscard]] std::string_view localeSegment(const Configuration& configuration, const Locale& locale);

/// The pieces that are not empty, with "/" between them: the root, the locale's segment, the folder and the
/// name; and ".astro" behind that if there is to be an extension.
[[nodiscard]] std::string filePath(std::string_view root, std::string_view localeSegment,
                                   std::string_view folder, std::string_view name, bool hasExtension);

/// The URLs of a site, from its root. On a site of a single page a fragment alone means that page, wherever
/// it stands.
class Urls {
  public:
    /// Both outlive the object.
    Urls(const Configuration& configuration, const DocumentNames& names) noexcept
        : configuration_(&configuration), names_(&names) {}

    [[nodiscard]] std::string ofOverview(const Locale& locale) const;
    [[nodiscard]] std::string ofOperation(const openapi::OperationRef& ref, const Locale& locale) const;
    /// Of the group of a declared tag. Where operations are on pages of their own there are no groups: that
    /// is an unreachable path.
    [[nodiscard]] std::string ofTag(std::string_view tag, const Locale& locale) const;
    [[nodiscard]] std::string ofResource(std::string_view schema, const Locale& locale) const;
    /// Of a page that stands in no folder: "operations", "resources", "search" or "changelog".
    [[nodiscard]] std::string ofPage(std::string_view name, const Locale& locale) const;

  private:
    /// `path` begins with a slash; it is empty for the single page. `fragment` may be empty.
    [[nodiscard]] std::string compose(const Locale& locale, std::string_view path,
                                      std::string_view fragment) const;

    const Configuration* configuration_;
    const DocumentNames* names_;
};

} // namespace specloom::openapi_generator::doc_html
