#pragma once

#include "openapi_lint/rule_handler.h"
#include "openapi_lint/texts.h"

namespace specloom::openapi_lint {

/// A rule that demands one convention of names; snake case unless its option says otherwise.
class NamingRule : public Rule {
  public:
    /// The name of a convention. Throws RuleConfigurationError "Options must not be null", "Options must be a
    /// string", and what parseNamingConvention() throws.
    void configure(const jv::JV* options) override;

    [[nodiscard]] NamingConvention convention() const noexcept { return convention_; }

  protected:
    using Rule::Rule;

  private:
    NamingConvention convention_ = NamingConvention::Snake;
};

/// What the handlers of such rules share.
class NamingHandler : public RuleHandler {
  public:
    NamingHandler(const NamingRule& rule, LintContext& context)
        : RuleHandler(rule, context), convention_(rule.convention()) {}

  protected:
    /// Reports a name that the conversion to the convention changes. `message` takes the name and the
    /// convention.
    void judge(std::string_view name, const char* message, const openapi::Node& node) const;

  private:
    NamingConvention convention_;
};

} // namespace specloom::openapi_lint
