// Runs every generator on documents:
//
//   generate_corpora OUTPUT FILE...
//
// makes OUTPUT/GENERATOR/NUMBER/ from the FILE of that number, counted from 0, and a line on standard output
// for each, a JSON object with "generator", "folder", "document" and "operationIds" or, in place of the
// folder, with the "failure". Documents that cannot be read have one line, without a generator.

#include "foundation/escapes.h"
#include "openapi/operation_ref.h"
#include "openapi_generator/plugin_runner.h"
#include "test_support/generators.h"
#include "test_support/read_tree.h"

#include <cstdio>    // stdout
#include <exception> // std::exception
#include <memory>    // std::make_unique
#include <string>    // std::string
#include <vector>    // std::vector

#include <fmt/format.h>

namespace specloom {
namespace {

/// An array of the ids of the document's operations.
std::string operationIds(const openapi::OpenAPI& root) {
    std::vector<std::string> ids;
    for (const openapi::OperationRef& ref : openapi::operationsOf(root))
        ids.push_back(toJsonLiteral(ref.operation->operationId().value_or("temp")));
    return fmt::format("[{}]", fmt::join(ids, ","));
}

/// Members of the line about one run.
std::string generate(const test_support::Generator& generator, std::unique_ptr<openapi::ReadResult> document,
                     const std::string& folder) {
    const std::string ids = operationIds(document->root());
    openapi_generator::PluginRunner runner;
    runner.addPlugin(generator.make(runner)).setParam("outputPath", folder);
    try {
        runner.run(std::move(document));
    } catch (const std::exception& error) {
        return fmt::format("\"failure\":{}", toJsonLiteral(error.what()));
    }
    return fmt::format("\"folder\":{},\"operationIds\":{}", toJsonLiteral(folder), ids);
}

void generateAll(const std::string& path, const std::string& output, int number) {
    for (const test_support::Generator& generator : test_support::generators()) {
        test_support::ReadTree tree = test_support::readTree(path);
        if (tree.result == nullptr) {
            fmt::print("{{\"document\":{},\"failure\":{}}}\n", toJsonLiteral(path),
                       toJsonLiteral(tree.refusal));
            return;
        }
        const std::string folder = fmt::format("{}/{}/{}", output, generator.name, number);
        fmt::print("{{\"document\":{},\"generator\":{},{}}}\n", toJsonLiteral(path),
                   toJsonLiteral(generator.name), generate(generator, std::move(tree.result), folder));
    }
}

} // namespace
} // namespace specloom

int main(int count, char** arguments) {
    for (int i = 2; i < count; ++i)
        specloom::generateAll(arguments[i], arguments[1], i - 2);
}
