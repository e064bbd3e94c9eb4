#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `path-parameters-on-items`: the parameters that a path names stand on the path item.
///
/// Finds path items of the paths whose URL template names a parameter that they do not have themselves
/// with the location "path". Counted as fixable, although there is nothing yet that fixes it. Can be
/// disabled on the path item.
///
/// Fails: `/tides/{port}: {get: {parameters: [{name: port, in: path, required: true}], responses: {}}}`.
/// Passes: `/tides/{port}: {parameters: [{name: port, in: path, required: true}], get: {responses: {}}}`.
class PathParametersOnItems final : public Rule {
  public:
    static constexpr std::string_view ruleId = "path-parameters-on-items";
    explicit PathParametersOnItems(Severity severity) : Rule(ruleId, severity) {}
    [[nodiscard]] bool isFixable() const override { return true; }
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
