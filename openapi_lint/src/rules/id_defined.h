#pragma once

#include "openapi_lint/rule.h"
#include "regex/pattern.h"

#include <optional> // std::optional
#include <string>   // std::string

namespace specloom::openapi {
class Info;
}

namespace specloom::openapi_lint {

/// `id-defined`: the API has an identifier that outlives its title.
///
/// Finds an info object without an identifier, by default a UUID in the extension "x-id", and one whose
/// identifier has another form. Registries of APIs tell a new version from a new API by it. Can be disabled
/// on the info object and on the document. The fix writes a new UUID in place of what is absent or wrong,
/// unless the form is the user's own.
///
/// Fails: `info: {title: Tides, version: "1.0", x-id: tides}`.
/// Passes: `info: {title: Tides, version: "1.0", x-id: 7c0f7e0e-3f6e-4b2c-9f57-0d7f3f2f8a11}`.
class IDDefined final : public Rule {
  public:
    static constexpr std::string_view ruleId = "id-defined";
    explicit IDDefined(Severity severity) : Rule(ruleId, severity) {}
    [[nodiscard]] bool isFixable() const override { return true; }
    /// An object with "attribute", the name of the extension, and "pattern", "uuid" or a regular expression
    /// (regex::Pattern) that matches an identifier as a whole.
    void configure(const jv::JV* options) override;
    void check(LintContext& context) override;
    void fix(LintContext& context) override;

  private:
    [[nodiscard]] bool isValid(const jv::JV& identifier) const;

    std::string attribute_ = "x-id";
    std::optional<regex::Pattern> pattern_; ///< none for UUIDs
};

} // namespace specloom::openapi_lint
