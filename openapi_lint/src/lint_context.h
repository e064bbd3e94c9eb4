#pragma once

#include "openapi/read_result.h"
#include "openapi_lint/disabling.h"
#include "openapi_lint/lint_result.h"
#include "openapi_lint/rule.h"
#include "openapi_lint/walk_order.h"
#include "source_edit/edits.h"

#include <cstddef>     // std::size_t
#include <cstdint>     // std::uint64_t
#include <list>        // std::list
#include <map>         // std::map
#include <memory>      // std::unique_ptr
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::move
#include <vector>      // std::vector

namespace specloom::openapi_lint {

/// Findings by file: the file's name, and the indices of its results in LintContext::results, by line and
/// column.
using ResultsByFile = std::map<std::string_view, std::vector<std::size_t>>;

/// What rules and formatters work on: the document at hand and the findings of all files so far.
class LintContext {
  public:
    static constexpr std::size_t mostFindings = 500'000; ///< of one document

    LintContext() = default;
    LintContext(const LintContext&) = delete;
    LintContext& operator=(const LintContext&) = delete;

    /// The UTF-8 name of the file at hand; empty when the document comes from no file.
    [[nodiscard]] std::string_view filename() const noexcept {
        return filenames_.empty() ? std::string_view() : std::string_view(filenames_.back());
    }
    /// The results so far keep the name that they have.
    void setFilename(std::string filename) {
        filenames_.push_back(std::move(filename));
        firstOfFile_ = results.size();
    }
    /// The names that were set, in their order: every file that was linted, also those without findings.
    [[nodiscard]] const std::list<std::string>& filenames() const noexcept { return filenames_; }

    /// The tree of the document at hand.
    [[nodiscard]] const openapi::OpenAPI& root() const { return document->root(); }
    /// For Rule::fix().
    [[nodiscard]] openapi::OpenAPI& root() { return document->root(); }

    /// Calls the hooks of the handler for each object of the document, each once, in the order of
    /// openapi::NodeVisitor.
    void walk(openapi::NodeVisitHandler& handler) const;
    /// Makes the following walks cheap, until release(). Meanwhile the tree must stay as it is.
    void freeze() { order_.emplace(document->root()); }
    void release() {
        order_.reset();
        disabled_.clear();
    }
    /// isDisabled() for the many nodes of the document at hand; `other` may be null.
    [[nodiscard]] bool isDisabled(const Rule& rule, const openapi::Node& node,
                                  const openapi::Node* other = nullptr) const;

    /// What fixes want to become of the source of the document at hand.
    [[nodiscard]] source_edit::Edits& edits();
    /// The values of the document at hand as they will be written: those of its source, with the edits.
    [[nodiscard]] const jv::JV& writtenValues();
    /// What people should know of a fix.
    void note(Message text) { notes_.push_back(std::move(text)); }
    [[nodiscard]] const std::vector<Message>& notes() const noexcept { return notes_; }
    /// Forgets the edits and the notes.
    void forgetFixes() noexcept {
        edits_.reset();
        written_.reset();
        notes_.clear();
    }

    /// Appends a finding, with the position of the value that the node was read from; unknown for a node that
    /// was made in code. Nothing is deduplicated. A severity outside of the enumeration is an unreachable
    /// path.
    void report(const Rule& rule, std::string message, const openapi::Node& node);

    /// Only files that have results. Unknown positions stand last; results at one position, and those of
    /// line 0, which are not ordered by column, stand in the order of their reports.
    [[nodiscard]] ResultsByFile groupByFile() const;

    openapi::ReadResult* document = nullptr; ///< not owned; null when none is at hand
    std::vector<LintResult> results;         ///< in report order
    std::uint64_t errorCount = 0;
    std::uint64_t warningCount = 0;
    std::uint64_t fixableErrorCount = 0;   ///< those of errorCount that are fixable
    std::uint64_t fixableWarningCount = 0; ///< those of warningCount that are fixable

  private:
    std::optional<WalkOrder> order_; ///< while the tree is frozen
    mutable DisabledNodes disabled_;
    std::optional<source_edit::Edits> edits_;
    std::unique_ptr<jv::JVDocument> written_; ///< where it is not the source
    std::vector<Message> notes_;
    std::size_t firstOfFile_ = 0;      ///< index of the first result of the file at hand
    std::list<std::string> filenames_; ///< a list, because results refer to its texts
};

} // namespace specloom::openapi_lint
