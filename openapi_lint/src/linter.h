#pragma once

#include "foundation/notes.h"
#include "openapi_lint/formatter.h"
#include "openapi_lint/lint_context.h"
#include "openapi_lint/rule.h"
#include "source_edit/repaired_file.h"

#include <functional>  // std::less
#include <iosfwd>      // std::ostream
#include <map>         // std::map
#include <memory>      // std::unique_ptr
#include <optional>    // std::optional
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

    /// Whether check() fixes what can be fixed, and writes the file.
    void setAutoFix(bool autoFix) noexcept { autoFix_ = autoFix; }
    /// Whether check(), where it is to fix, writes the repairs as a unified diff to the stream, in place of
    /// the report, and no file.
    void setDryRun(bool dryRun) noexcept { dryRun_ = dryRun; }
    /// Where check() says what people should know of fixes; silent at first.
    void setNotes(const Notes& notes) noexcept { notes_ = notes; }
    /// Throws what findFormatter() throws.
    void setFormatter(std::string_view name);

    /// check() for a document that was read from the file `path` (UTF-8), which the context gets to know by
    /// its absolute path without links and dots.
    ///
    /// A fix is made in the text of the file: what it does not change stays byte for byte, and without one
    /// the file is not touched. The rules then check what will be written. Throws what
    /// source_edit::RepairedFile throws when the file cannot be repaired.
    void run(openapi::ReadResult& document, std::string_view path);

    /// Fixes if asked to, checks, writes the file if anything was fixed, and writes the report, with a line
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
    void repair(openapi::ReadResult& document);
    void finishRepair();

    std::ostream& stream_;
    LintContext context_;
    bool autoFix_ = false;
    bool dryRun_ = false;
    Notes notes_;
    std::string path_; ///< of the file at hand, as it was given
    std::optional<source_edit::RepairedFile> repaired_;
    Rules rules_;
    std::unique_ptr<Formatter> formatter_;
};

} // namespace specloom::openapi_lint
