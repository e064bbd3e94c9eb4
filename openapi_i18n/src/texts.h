#pragma once

#include "openapi/read_result.h"

#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_i18n {

/// The texts of a document that readers see, each once, in the order in which they stand in it: titles,
/// summaries and descriptions of all objects, names of tags, descriptions of OAuth scopes. Texts without
/// anything to read, and those that generators only copy (identifiers, examples' values), are none of them.
/// They lie in the document.
[[nodiscard]] std::vector<std::string_view> translatableTexts(const openapi::ReadResult& document);

} // namespace specloom::openapi_i18n
