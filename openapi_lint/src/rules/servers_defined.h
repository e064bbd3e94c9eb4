#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `servers-defined`: the document says where the API is served.
///
/// Finds a document without servers, whose paths would be taken to stand beside the document itself. Can be
/// disabled on the document.
///
/// Fails: `servers: []`.
/// Passes: `servers: [{url: "https://tides.example"}]`.
class ServersDefined final : public Rule {
  public:
    static constexpr std::string_view ruleId = "servers-defined";
    explicit ServersDefined(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
