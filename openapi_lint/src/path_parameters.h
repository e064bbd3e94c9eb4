#pragma once

#include "foundation/text_tables.h"
#include "openapi/parameter_list.h"

#include <string_view> // std::string_view

// Which parameters a URL template asks for (OpenAPI 3.1.0, section 4.8.8.1).
namespace specloom::openapi_lint {

using PathParameterNames = TextViewSet;

/// The names that the template uses, see openapi::templateNames(); they lie in `url`.
[[nodiscard]] PathParameterNames extractPathParameters(std::string_view url);

/// Takes out the names of the list's parameters of the location "path".
void erasePathParameters(PathParameterNames& names, const openapi::ParameterList& parameters);

} // namespace specloom::openapi_lint
