#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `path-parameters-defined`: an operation has every parameter that its path names.
///
/// Finds operations of the paths whose URL template names a parameter that neither they nor their path
/// item have with the location "path". Operations in callbacks, webhooks and components have no template,
/// and neither has a path item that the paths only refer to. Can be disabled on the operation.
///
/// Fails: `/tides/{port}: {get: {responses: {}}}`.
/// Passes: `/tides/{port}: {get: {parameters: [{name: port, in: path, required: true}], responses: {}}}`.
class PathParametersDefined final : public Rule {
  public:
    static constexpr std::string_view ruleId = "path-parameters-defined";
    explicit PathParametersDefined(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
