#include "openapi_lint/lint_context.h"

#include "foundation/message.h"
#include "foundation/unreachable.h"
#include "openapi/node_visitor.h"
#include "source_edit/edited_values.h"

#include <algorithm> // std::stable_sort
#include <stdexcept> // std::runtime_error
#include <utility>   // std::move

namespace specloom::openapi_lint {
namespace {

/// Unknown is the largest of all numbers and so comes last. Line 0 is the first of YAML, where columns do not
/// count.
bool standsBefore(const LintResult& a, const LintResult& b) {
    if (a.line != b.line)
        return a.line < b.line;
    return a.line != 0 && a.column < b.column;
}

} // namespace

void LintContext::walk(openapi::NodeVisitHandler& handler) const {
    if (order_)
        order_->walk(handler);
    else
        openapi::NodeVisitor(handler).visit(document->root());
}

bool LintContext::isDisabled(const Rule& rule, const openapi::Node& node, const openapi::Node* other) const {
    return (!order_ || order_->mayDisable()) &&
           (disabled_.contain(rule, node) || (other != nullptr && disabled_.contain(rule, *other)));
}

source_edit::Edits& LintContext::edits() {
    if (!edits_)
        edits_.emplace(document->source());
    return *edits_;
}

const jv::JV& LintContext::writtenValues() {
    const jv::JV& root = *document->source().root();
    if (!edits_ || edits_->empty())
        return root;
    if (written_ == nullptr)
        written_ = source_edit::editedValue(*edits_, root);
    return *written_->root();
}

void LintContext::report(const Rule& rule, std::string message, const openapi::Node& node) {
    if (results.size() - firstOfFile_ == mostFindings)
        throw std::runtime_error(formatMessage("More than {} findings in one document", mostFindings));
    LintResult result{.ruleId = rule.id(),
                      .severity = rule.severity(),
                      .fixable = rule.isFixable(),
                      .filename = filename(),
                      .message = std::move(message)};
    if (const jv::Pos pos = document->locationOf(node).pos; pos.isKnown()) {
        result.line = static_cast<std::uint64_t>(pos.line);
        result.column = static_cast<std::uint64_t>(pos.column);
    }
    switch (result.severity) {
    case Severity::Error:
        ++errorCount;
        fixableErrorCount += result.fixable ? 1 : 0;
        break;
    case Severity::Warning:
        ++warningCount;
        fixableWarningCount += result.fixable ? 1 : 0;
        break;
    default:
        // The place is part of a published text, which outlives the files that it names.
        unreachable(nullptr, "openapi_lint/src/result", 51);
    }
    results.push_back(std::move(result));
}

ResultsByFile LintContext::groupByFile() const {
    ResultsByFile files;
    for (std::size_t index = 0; index < results.size(); ++index)
        files[results[index].filename].push_back(index);
    for (auto& [filename, indices] : files)
        std::stable_sort(indices.begin(), indices.end(),
                         [&](std::size_t a, std::size_t b) { return standsBefore(results[a], results[b]); });
    return files;
}

} // namespace specloom::openapi_lint
