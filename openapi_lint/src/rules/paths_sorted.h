#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `paths-sorted`: paths stand in order.
///
/// Finds paths that the document has behind one whose name is byte-wise greater. The tree holds the paths
/// by name, so the order is known from their positions. Counted as fixable: the tree has nothing to sort,
/// and the order of a rewritten file is that of the writer. Can be disabled on the document.
///
/// Fails: `paths: {/tides: {}, /ports: {}}`.
/// Passes: `paths: {/ports: {}, /tides: {}}`.
class PathsSorted final : public Rule {
  public:
    static constexpr std::string_view ruleId = "paths-sorted";
    explicit PathsSorted(Severity severity) : Rule(ruleId, severity) {}
    [[nodiscard]] bool isFixable() const override { return true; }
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
