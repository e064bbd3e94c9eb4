#pragma once

#include "jv/pos.h"
#include "openapi_lint/types.h"

#include <cstdint>     // std::int32_t, std::uint64_t
#include <limits>      // std::numeric_limits
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_lint {

/// One finding. There may be a hundred thousand of them, so the texts that many share are not copied.
struct LintResult {
    /// The line and the column of a finding without a position.
    static constexpr std::uint64_t unknown = std::numeric_limits<std::uint64_t>::max();
    /// Where in the document: always its root.
    static constexpr std::string_view path = "#/";

    std::string_view ruleId; ///< Rule::id()
    Severity severity = Severity::Error;
    bool fixable = false;
    std::string_view filename; ///< LintContext::filename() at the time; lives as long as the context
    /// As the format's reader counts: 1-based and in bytes for JSON, 0-based and in code points for YAML.
    std::uint64_t line = unknown;
    std::uint64_t column = unknown;
    std::string message;

    [[nodiscard]] bool hasPosition() const noexcept { return line != unknown; }
    [[nodiscard]] jv::Pos pos() const noexcept {
        return hasPosition() ? jv::Pos{static_cast<std::int32_t>(line), static_cast<std::int32_t>(column)}
                             : jv::Pos{};
    }
};

} // namespace specloom::openapi_lint
