#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `paths-unique`: no two paths match the same requests.
///
/// Finds paths that are the same as an earlier one, in the order of their names, when the names in
/// braces, repeated slashes and one slash at the end do not count. Letters count with their case. Can be
/// disabled on the document.
///
/// Fails: `paths: {"/ports/{id}": {}, "/ports/{name}": {}}`.
/// Passes: `paths: {"/ports": {}, "/ports/{name}": {}}`.
class PathsUnique final : public Rule {
  public:
    static constexpr std::string_view ruleId = "paths-unique";
    explicit PathsUnique(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
