#pragma once

#include "openapi/media_type.h"
#include "openapi/node.h"

#include <string_view> // std::string_view

namespace specloom::openapi_generator::doc_html {

struct NamedMediaType {
    std::string_view name;                         ///< as the document has it
    const openapi::MediaType* mediaType = nullptr; ///< null when there is none
};

/// Of the `content` of a request body or a response: "application/json", or else the first media type that
/// is the same but for its letters' case and its parameters, or else the first one with the suffix "+json"
/// (RFC 6839, section 3.1).
[[nodiscard]] NamedMediaType jsonMediaType(const openapi::NodeMap& content);

} // namespace specloom::openapi_generator::doc_html
