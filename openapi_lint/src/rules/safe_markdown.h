#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `safe-markdown`: descriptions hold nothing that a page should not run.
///
/// Finds each description with raw HTML, and each with a link or an image whose destination has another
/// scheme than http, https, mailto or tel; at most one of either for a text. Documentation pages render
/// descriptions, and not all of them clean what they render. Can be disabled on each object with a
/// description and on those around it.
///
/// Fails: `description: "Click [here](javascript:alert(1)) <b>now</b>"`.
/// Passes: `description: "See the [tables](https://tides.example/tables)"`.
class SafeMarkdown final : public Rule {
  public:
    static constexpr std::string_view ruleId = "safe-markdown";
    explicit SafeMarkdown(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
