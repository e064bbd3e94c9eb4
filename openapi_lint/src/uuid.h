#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_lint {

/// Whether the text has the form of a UUID (RFC 9562, section 4): 32 hexadecimal digits of either case in
/// groups of 8, 4, 4, 4 and 12 with hyphens between them. Version and variant are not looked at.
[[nodiscard]] bool isUuid(std::string_view text) noexcept;

/// A random UUID of version 4 (RFC 9562, section 5.4), in lower case. It is for naming things, not for
/// secrets.
[[nodiscard]] std::string newUuid();

} // namespace specloom::openapi_lint
