#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `paths-well-formed`: a path is written as it should be.
///
/// Finds paths that do not begin with a slash, repeat one, end with one, or have a letter in upper case
/// outside of the braces. So "/" alone is found too. Can be disabled on the path item.
///
/// Fails: `/Ports/`.
/// Passes: `/ports/{portId}`.
class PathsWellFormed final : public Rule {
  public:
    static constexpr std::string_view ruleId = "paths-well-formed";
    explicit PathsWellFormed(Severity severity) : Rule(ruleId, severity) {}
    [[nodiscard]] bool isFixable() const override { return true; }
    void check(LintContext& context) override;
    /// Puts lower case throughout, also into braces, one slash for several, and a slash at the beginning;
    /// one at the end stays. Paths without a finding are no exception. A path whose new name another one has
    /// or gets before it keeps its own, so that neither is lost. Parameters follow as renamePaths() tells.
    void fix(LintContext& context) override;
};

} // namespace specloom::openapi_lint
