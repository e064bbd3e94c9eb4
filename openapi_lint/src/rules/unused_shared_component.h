#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `unused-shared-component`: every component is used.
///
/// Finds entries of `components` to which nothing refers but themselves. A security scheme is used when a
/// requirement names it; a schema also when the mapping of a discriminator names it, or when it extends a
/// schema with a discriminator by `allOf`, since values choose it by its name. An entry that is itself a
/// reference is not looked at: what refers to it refers to the object behind it. Can be disabled on the
/// component.
///
/// Fails: a schema under `components` without a `$ref` to it.
/// Passes: a schema with one.
class UnusedSharedComponent final : public Rule {
  public:
    static constexpr std::string_view ruleId = "unused-shared-component";
    explicit UnusedSharedComponent(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
