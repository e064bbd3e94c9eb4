#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `audience-defined`: the info object says for whom the API is.
///
/// Finds an info object whose extension "x-audience" is absent or none of "internal-team",
/// "internal-company", "partner" and "public". Who publishes or guards APIs by audience needs to know it from
/// the document itself. Can be disabled on the info object and on the document.
///
/// Fails: `info: {title: Tides, version: "1.0", x-audience: everybody}`.
/// Passes: `info: {title: Tides, version: "1.0", x-audience: public}`.
class AudienceDefined final : public Rule {
  public:
    static constexpr std::string_view ruleId = "audience-defined";
    explicit AudienceDefined(Severity severity) : Rule(ruleId, severity) {}
    /// Throws jv::JVError "A string value is expected for 'x-audience'." for an audience of another kind.
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
