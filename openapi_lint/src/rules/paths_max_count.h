#pragma once

#include "number/number.h"
#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `paths-max-count`: a document has few paths.
///
/// Finds a paths object with more entries than the maximum. Can be disabled on the paths object.
///
/// Fails: nine paths.
/// Passes: eight paths.
class PathsMaxCount final : public Rule {
  public:
    static constexpr std::string_view ruleId = "paths-max-count";
    explicit PathsMaxCount(Severity severity) : Rule(ruleId, severity) {}
    /// The largest number of paths, see optionsMaximumForPaths().
    void configure(const jv::JV* options) override;
    void check(LintContext& context) override;

  private:
    number::Number maximum_ = 8;
};

} // namespace specloom::openapi_lint
