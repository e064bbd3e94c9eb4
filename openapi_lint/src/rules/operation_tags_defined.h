#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `operation-tags-defined`: an operation has a tag.
///
/// Finds operations without a tag that the document declares; others are not known to the tree. Can be
/// disabled on the operation.
///
/// Fails: `get: {responses: {}}`.
/// Passes: `tags: [{name: tides}]` and `get: {tags: [tides], responses: {}}`.
class OperationTagsDefined final : public Rule {
  public:
    static constexpr std::string_view ruleId = "operation-tags-defined";
    explicit OperationTagsDefined(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
