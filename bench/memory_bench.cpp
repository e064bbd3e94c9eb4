#include "bench/benchmarks.h"
#include "bench/process.h"
#include "jv/json_reader.h"
#include "jv/yaml_reader.h"
#include "test_support/documents.h"

#include <memory> // std::unique_ptr

#include <fmt/core.h>

namespace specloom::bench {

namespace {

[[nodiscard]] std::size_t countValues(const jv::JV& root) {
    std::size_t count = 0;
    test_support::forEachValue(root, [&count](const jv::JV&) { ++count; });
    return count;
}

} // namespace

/// The peak of a process that reads the document above that of one that only holds its text: what remains
/// counts everything, also what reading needs for a while and what the allocator wastes.
void benchMemory(const Input& input, Table& table) {
    const auto document = input.isJson() ? jv::parseJSON(input.text) : jv::parseYAML(input.text);
    const auto values = static_cast<double>(countValues(*document->root()));
    const double withText = runProcess({READ_ONLY, "text", input.path.string()}).peakBytes;
    const double withValues =
        runProcess({READ_ONLY, input.isJson() ? "json" : "yaml", input.path.string()}).peakBytes;
    const double perValue = (withValues - withText) / values;
    table.add({"memory of a read document, bytes per value", input.name(), mebibytes(withValues - withText),
               fmt::format("{:.0f}k vals", values / 1000), perValue, 100});
}

} // namespace specloom::bench
