#pragma once

#include <string_view> // std::string_view

// The keys of a Responses Object (OpenAPI 3.1.0, section 4.8.16.2). "default" is neither of these.
namespace specloom::openapi_lint {

/// A digit from 1 to 5 and two more digits: "404".
[[nodiscard]] bool isResponseCode(std::string_view key);
/// A digit from 1 to 5 and "XX", which stands for all codes that begin with it: "4XX".
[[nodiscard]] bool isResponseCodeRange(std::string_view key);

} // namespace specloom::openapi_lint
