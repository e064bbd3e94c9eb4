#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `tags-unique`: no two tags of the document have the same name.
///
/// Finds each tag with the name of one before it (OpenAPI 3.1.0, section 4.8.1.1 demands unique names). Can
/// be disabled on the document.
///
/// Fails: `tags: [{name: tides}, {name: tides}]`.
/// Passes: `tags: [{name: ports}, {name: tides}]`.
class TagsUnique final : public Rule {
  public:
    static constexpr std::string_view ruleId = "tags-unique";
    explicit TagsUnique(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
