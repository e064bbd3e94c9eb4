#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `tags-sorted`: the tags of the document stand in the order of their names.
///
/// Finds each tag whose name is byte-wise less than the one before it. In a long list a tag is found, and its
/// absence seen, by its place. Can be disabled on the document. The fix sorts the tags.
///
/// Fails: `tags: [{name: tides}, {name: ports}]`.
/// Passes: `tags: [{name: ports}, {name: tides}]`.
class TagsSorted final : public Rule {
  public:
    static constexpr std::string_view ruleId = "tags-sorted";
    explicit TagsSorted(Severity severity) : Rule(ruleId, severity) {}
    [[nodiscard]] bool isFixable() const override { return true; }
    void check(LintContext& context) override;
    void fix(LintContext& context) override;
};

} // namespace specloom::openapi_lint
