#pragma once

#include <string_view> // std::string_view

namespace specloom::openapi_lint {

/// Whether this is exactly, case included, an identifier of the SPDX License List 3.28.0 (2026-02-20): of its
/// 727 licences or of its 84 exceptions, deprecated ones included. Expressions of several identifiers are
/// none.
[[nodiscard]] bool isSpdxIdentifier(std::string_view text);

} // namespace specloom::openapi_lint
