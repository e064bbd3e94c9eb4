#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `license-defined`: the document says under which terms the API may be used.
///
/// Finds an info object without license, a license without a name, one that has neither URL nor identifier,
/// and an identifier that the SPDX License List does not have. Can be disabled on the license, the info
/// object and the document.
///
/// Fails: `license: {name: Apache 2.0, identifier: Apache 2}`.
/// Passes: `license: {name: Apache 2.0, identifier: Apache-2.0}`.
class LicenseDefined final : public Rule {
  public:
    static constexpr std::string_view ruleId = "license-defined";
    explicit LicenseDefined(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
