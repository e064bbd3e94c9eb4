#pragma once

#include "number/number.h"
#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `tag-description-defined`: tags say what belongs to them.
///
/// Finds each tag whose description is absent, too short (10 bytes by default) or a placeholder: see
/// isMeaningfulText(). Documentation shows it at the head of each group of operations. Can be disabled on the
/// document.
///
/// Fails: `tags: [{name: tides, description: TODO}]`.
/// Passes: `tags: [{name: tides, description: Times and heights of high and low water}]`.
class TagDescriptionDefined final : public Rule {
  public:
    static constexpr std::string_view ruleId = "tag-description-defined";
    explicit TagDescriptionDefined(Severity severity) : Rule(ruleId, severity) {}
    /// A number above 0, the least length of a description in bytes: see optionsPositiveNumber().
    void configure(const jv::JV* options) override;
    void check(LintContext& context) override;

  private:
    number::Number minimumLength_{10};
};

} // namespace specloom::openapi_lint
