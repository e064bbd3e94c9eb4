#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_generator::server_express {

/// The route path (Express 4, "String patterns") that matches the requests for a URL template (OpenAPI 3.1.0,
/// section 4.8.8.1): "/pets/{id}" gives "/pets/:id". All but the parameters is matched as it stands:
/// - signs that Express would take for a pattern are behind a backslash ("/a(b" gives "/a\(b"), and a letter,
///   digit or "_" behind a parameter, which would go on with its name, is in brackets ("/{a}b" gives
///   "/:a[b]");
/// - what no URL holds, such as blanks and bytes of 128 and above, and the backslash, is percent-encoded, for
///   Express compares with the path as the request brings it.
/// In the name of a parameter "_" stands for each sign but ASCII letters, digits and "_".
[[nodiscard]] std::string toExpressRoute(std::string_view urlTemplate);

} // namespace specloom::openapi_generator::server_express
