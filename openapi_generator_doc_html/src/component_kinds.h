#pragma once

#include "openapi_generator_doc_html/naming.h"

#include <string>      // std::string
#include <string_view> // std::string_view

// What templates call the components of a site, and where these stand.
namespace specloom::openapi_generator::doc_html {

/// A kind of component of which there is one for each operation or schema.
struct ComponentKind {
    std::string_view folder;
    std::string_view symbolPrefix;

    /// The identifier by which a component is imported.
    [[nodiscard]] std::string symbolOf(const ArtefactNames& names) const {
        return std::string(symbolPrefix) + names.symbol;
    }
};

inline constexpr ComponentKind operationComponent{"operations", "Operation_"};
inline constexpr ComponentKind operationUsageComponent{"operation_usage", "OperationUsage_"};
inline constexpr ComponentKind resourceComponent{"schemas", "Resource_"};
inline constexpr ComponentKind resourceUsageComponent{"schema_usage", "ResourceUsage_"};

} // namespace specloom::openapi_generator::doc_html
