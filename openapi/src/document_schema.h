#pragma once

#include "jv_schema/schema.h"

#include <string_view> // std::string_view

namespace specloom::openapi {

/// The JSON Schema for OpenAPI documents whose member `openapi` is `version`: that of 3.0 for a text that
/// begins with "3.0", that of 3.1 for every other. Compiled when it is first asked for.
///
/// For 3.1 there are two published readings: one that looks at the structure of the document only, and one
/// that also holds each Schema Object against the dialect of OpenAPI. Authors expect mistakes in schemas to
/// be found, so this is the latter, unless the document names a dialect of its own in `jsonSchemaDialect`,
/// about which nothing is known here.
[[nodiscard]] const jv::schema::Schema& documentSchema(std::string_view version);

} // namespace specloom::openapi
