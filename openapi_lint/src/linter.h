#pragma once

#include "openapi_lint/formatter.h"
#include "openapi_lint/lint_context.h"
#include "openapi_lint/rule.h"

#include <functional>  // std::less
#include <iosfwd>      // std::ostream
#include <map>         // std::map
#include <memory>      // std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_lint {

/// Checks OpenAPI documents by a set of rules and writes a report for each.
///
/// One linter serves all documents of a run. Its findings gather from document to document, so each report
/// tells about all documents so far.
class Linter {
  public:
    /// Without rules, without fixing, with the formatter "stylish". The stream must outlive the linter.
    explicit Linter(std::ostream& stream);

    /// Takes the rules from a configuration: rulesets from the array "extends", then single rules from the
    /// object "rules". A null pointer leaves the rule set empty.
    ///
    /// A ruleset that cannot be loaded is reported on the stream ("Cannot load ruleset: ") and passed over. A
    /// rule that cannot is reported there too ("Cannot load rule: ") and ends in RuleConfigurationError, with
    /// the rule's own text when the rule refused its options and else with "Invalid rule configuration".
    /// Throws jv::JVError when "extends" is no array of strings or "rules" no object.
    void configure(const jv::JV* config);
    /// The ruleset "recommended".
    void configureDefaults();

    /// Whether check() fixes and writes back what can be fixed.
    void setAutoFix(bool autoFix) noexcept { autoFix_ = autoFix; }
    /// Throws what findFormatter() throws.
    void setFormatter(std::string_view name);

    /// check() for a document that was read from the file `path` (UTF-8), which the context gets to know by
    /// its absolute path without links and dots.
    void run(openapi::ReadResult& document, std::string_view path);

    /// Fixes if asked to, checks, writes the document back if it fixed, and writes the report, with a line
    /// feed behind it. The rules run in the order of their ids, those that are fixable first.
    ///
    /// Throws what the rules throw and, after the checks, std::runtime_error "Cannot auto-fix: filename is
    /// not set" when the context has no file name to write to.
    void check(openapi::ReadResult& document);

    /// The findings so far.
    [[nodiscard]] const LintContext& context() const noexcept { return context_; }

    /// By id, in byte-wise order.
    using Rules = std::map<std::string, std::unique_ptr<Rule>, std::less<>>;
    [[nodiscard]] const Rules& rules() const noexcept { return rules_; }

  private:
    void addRuleset(std::string_view name);
    void configureRule(std::string_view id, const jv::JV& value);
    Rule& putRule(std::string_view id, Severity severity);

    std::ostream& stream_;
    LintContext context_;
    bool autoFix_ = false;
    Rules rules_;
    std::unique_ptr<Formatter> formatter_;
};

} // namespace specloom::openapi_lint
