#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `standard-media-types`: contents have media types that everybody knows.
///
/// Finds the keys of the content of headers, parameters, request bodies and responses whose type or subtype
/// is not one of isMediaType(). Reported on the object that has the content, where it can be disabled.
///
/// Fails: `content: {application/vnd.tides: {}}`.
/// Passes: `content: {application/json: {}, "text/plain; charset=utf-8": {}}`.
class StandardMediaTypes final : public Rule {
  public:
    static constexpr std::string_view ruleId = "standard-media-types";
    explicit StandardMediaTypes(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
