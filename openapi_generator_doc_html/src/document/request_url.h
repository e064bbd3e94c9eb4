#pragma once

#include "jv/jv.h"
#include "openapi/operation_ref.h"

#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_generator::doc_html {

struct ValuedParameter {
    const openapi::Parameter* parameter;
    const jv::JV* value;
};

/// The first server of the operation, else of its path item, else of the document. Throws std::runtime_error
/// "No server found".
[[nodiscard]] const openapi::Server& serverOf(const openapi::OpenAPI& document,
                                              const openapi::OperationRef& ref);

/// A URL with which a request can begin: that of a server, the variables at their defaults, and the path,
/// with one slash between them, and the query.
///
/// The path is a URI template (RFC 6570); what may not stand in one is percent-encoded. A variable that no
/// parameter tells about stands for its name. Parameters of the query follow, those that are arrays with "[]"
/// behind their names (percent-encoded, as RFC 3986 has it); `style` and `explode` are kept to (OpenAPI
/// 3.1.0, section 4.8.12.3). Parameters that stand elsewhere have no part in it.
[[nodiscard]] std::string requestUrl(const openapi::Server& server, std::string_view path,
                                     const std::vector<ValuedParameter>& parameters);

/// The value of a header (style "simple"); nothing for null and for what is empty.
[[nodiscard]] std::optional<std::string> headerText(const ValuedParameter& header);

} // namespace specloom::openapi_generator::doc_html
