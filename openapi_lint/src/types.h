#pragma once

#include <cstdint>     // std::uint8_t
#include <string_view> // std::string_view

namespace specloom::openapi_lint {

/// How much a finding weighs. A rule that is switched off has no severity: it is not in the rule set.
enum class Severity : std::uint8_t { Warning = 0, Error = 1 };

/// "error" and "err", "warning" and "warn"; exactly so. Throws std::runtime_error "Invalid severity" for any
/// other text.
[[nodiscard]] Severity parseSeverity(std::string_view text);

/// "warning" or "error"; an unreachable path for any other value.
[[nodiscard]] std::string_view severityName(Severity severity);
/// "Warning" or "Error"; an unreachable path for any other value.
[[nodiscard]] std::string_view capitalizedSeverityName(Severity severity);

} // namespace specloom::openapi_lint
