#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `info-defined`: the info object says what the API is.
///
/// Finds an info object without a summary or a description, or with an empty one, or with an empty version.
/// They are what a catalogue of APIs and every documentation page show first. Can be disabled on the info
/// object and on the document.
///
/// Fails: `info: {title: Tides, version: ""}`.
/// Passes: `info: {title: Tides, summary: Tide tables, description: High and low water, version: "1.0"}`.
class InfoDefined final : public Rule {
  public:
    static constexpr std::string_view ruleId = "info-defined";
    explicit InfoDefined(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
