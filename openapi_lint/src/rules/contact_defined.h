#pragma once

#include "openapi_lint/rule.h"

namespace specloom::openapi_lint {

/// `contact-defined`: the document says whom to ask.
///
/// Finds an info object without contact, and a contact without name, email or URL, or with an empty one. Can
/// be disabled on the contact, the info object and the document.
///
/// Fails: `contact: {name: Harbour office}`.
/// Passes: `contact: {name: Harbour office, email: api@tides.example, url: "https://tides.example/contact"}`.
class ContactDefined final : public Rule {
  public:
    static constexpr std::string_view ruleId = "contact-defined";
    explicit ContactDefined(Severity severity) : Rule(ruleId, severity) {}
    void check(LintContext& context) override;
};

} // namespace specloom::openapi_lint
