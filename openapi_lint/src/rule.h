#pragma once

#include "openapi_lint/types.h"

#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::jv {
class JV;
}
namespace specloom::openapi {
class Node;
}

namespace specloom::openapi_lint {

class LintContext;

/// One check of a document. A rule serves all documents of a run: what it gathers while it looks at one of
/// them belongs into check(), what configure() sets stays.
///
/// Each rule has a file pair below rules/, the constant `ruleId`, a constructor that takes the severity, and
/// a line in the table of rule_registry.cpp.
class Rule {
  public:
    virtual ~Rule() = default;
    Rule(const Rule&) = delete;
    Rule& operator=(const Rule&) = delete;

    /// Whether the findings of this rule are counted as fixable.
    [[nodiscard]] virtual bool isFixable() const { return false; }
    /// Takes the options of a configuration, which live no longer than the call. Null when there are none to
    /// take; options that are written as `null` are a value of that kind. Throws RuleConfigurationError for
    /// options that it does not know.
    virtual void configure(const jv::JV* options);
    /// Reports what is wrong with the context's document.
    virtual void check(LintContext& context);
    /// Says in LintContext::edits() what is to become of the source of the context's document so that check()
    /// finds less, and changes the tree alike, for the fixes that come after it.
    virtual void fix(LintContext& context);

    /// Lives as long as the program.
    [[nodiscard]] std::string_view id() const noexcept { return id_; }
    [[nodiscard]] Severity severity() const noexcept { return severity_; }
    void setSeverity(Severity severity) noexcept { severity_ = severity; }

    /// LintContext::report() with this rule.
    void report(LintContext& context, std::string message, const openapi::Node& node) const;

  protected:
    /// `id` is a literal.
    Rule(std::string_view id, Severity severity) noexcept : id_(id), severity_(severity) {}

  private:
    std::string_view id_;
    Severity severity_;
};

} // namespace specloom::openapi_lint
