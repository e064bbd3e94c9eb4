#include "openapi_i18n/site_texts.h"

#include <array> // std::to_array

namespace specloom::openapi_i18n {

namespace {

constexpr auto siteTextTable = std::to_array<std::string_view>({
    // titles of pages and headings
    "Overview",
    "Operations",
    "Operations {}",
    "Operation {}",
    "Operations (ungrouped)",
    "Resources",
    "Resource {}",
    "Search",
    "Changelog",
    "Index",
    // what components say
    "<absent>",
    "Authorization URL",
    "Bearer format",
    "Contact",
    "Cookie parameters",
    "Deprecated",
    "External documentation",
    "Flow",
    "Generated example",
    "Header parameters",
    "In",
    "Inherited",
    "License",
    "Media type",
    "Method",
    "Name",
    "No results",
    "OpenID Connect URL",
    "Path parameters",
    "Possible values",
    "Properties",
    "Query parameters",
    "Refresh URL",
    "Request body",
    "Request examples",
    "Required",
    "Response examples",
    "Response schemas",
    "Responses",
    "Scheme",
    "Scopes",
    "Security",
    "Security schemes",
    "Servers",
    "Tags",
    "Terms of service",
    "Token URL",
    "Type",
    "Used by",
    "Uses",
    "Variables",
    "Version",
});

} // namespace

std::span<const std::string_view> siteTexts() noexcept {
    return siteTextTable;
}

} // namespace specloom::openapi_i18n
