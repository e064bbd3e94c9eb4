#pragma once

#include "number/number.h"
#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `paths-max-depth`: a path has few segments.
///
/// Finds paths whose depth, one more than the number of their slashes, is above the maximum. A slash that
/// is the only one and the last character does not count. Can be disabled on the path item.
///
/// Fails: `/ports/{port}/tides/{day}`, whose depth is 5.
/// Passes: `/ports/{port}/tides`, whose depth is 4.
class PathsMaxDepth final : public Rule {
  public:
    static constexpr std::string_view ruleId = "paths-max-depth";
    explicit PathsMaxDepth(Severity severity) : Rule(ruleId, severity) {}
    /// The largest depth, see optionsMaximumForPaths().
    void configure(const jv::JV* options) override;
    void check(LintContext& context) override;

  private:
    number::Number maximum_ = 4;
};

} // namespace specloom::openapi_lint
