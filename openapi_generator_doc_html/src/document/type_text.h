#pragma once

#include "openapi/node.h"

#include <string> // std::string

namespace specloom::openapi_generator::doc_html {

/// The types that a schema allows, for readers: "<any>" where nothing limits them, "<empty>" where nothing is
/// allowed, else each type, joined by " or ": "integer", "string(date-time)", "array of strings". `schema` is
/// a schema or a reference to one; null is a schema that is not there, and so "<any>".
[[nodiscard]] std::string typeText(const openapi::Node* schema);

} // namespace specloom::openapi_generator::doc_html
