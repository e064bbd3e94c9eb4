#include "openapi_lint/formatters/tap_formatter.h"

#include "foundation/escapes.h"
#include "foundation/printable.h"
#include "foundation/strings.h"
#include "foundation/unreachable.h"
#include "jv/yaml_writer.h"
#include "openapi_lint/lint_context.h"
#include "openapi_lint/result_value.h"

#include <algorithm> // std::count_if
#include <cstdint>   // std::int64_t
#include <ostream>   // std::ostream
#include <string>    // std::string
#include <vector>    // std::vector

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

bool isError(const LintResult& result) {
    switch (result.severity) {
    case Severity::Error:
        return true;
    case Severity::Warning:
        return false;
    }
    // The place is part of a published text, which outlives the files that it names.
    unreachable(nullptr, "openapi_lint/src/formatters/tap", __LINE__);
}

/// The YAML block of a file with results.
std::string diagnosticsOf(const LintContext& context, const std::vector<std::size_t>& indices) {
    const auto errors = std::count_if(indices.begin(), indices.end(),
                                      [&](std::size_t index) { return isError(context.results[index]); });
    jv::JVDocument diagnostics;
    jv::JV* root = diagnostics.makeRoot(jv::Kind::Object);
    root->setInteger("errorCount", errors);
    root->setInteger("warningCount", static_cast<std::int64_t>(indices.size()) - errors);
    jv::JV* issues = root->setArray("issues");
    for (const std::size_t index : indices)
        appendResult(*issues, context.results[index], printable);
    jv::YAMLWriter writer;
    writer.write(diagnostics);
    return fmt::format("  ---\n{}\n  ...\n", indentLines(writer.output(), 2));
}

} // namespace

void TAPFormatter::format(const LintContext& context) {
    ResultsByFile files = context.groupByFile();
    for (const std::string& filename : context.filenames())
        files.try_emplace(filename); // those without results are tests that passed
    std::string text = fmt::format("TAP version 14\n1..{}\n", files.size());
    for (const auto& [filename, indices] : files) {
        text.append(indices.empty() ? "ok" : "not ok").append(" - ").append(escapeTap(printable(filename))) +=
            '\n';
        if (!indices.empty())
            text += diagnosticsOf(context, indices);
    }
    stream() << text;
}

} // namespace specloom::openapi_lint
