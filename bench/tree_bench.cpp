#include "bench/benchmarks.h"
#include "bench/measure.h"
#include "bench/process.h"
#include "jv/deser.h"
#include "openapi/node_visitor.h"
#include "openapi/reader.h"
#include "test_support/read_tree.h"

#include <memory> // std::unique_ptr

#include <fmt/core.h>

namespace specloom::bench {

namespace {

/// The tree's peak includes the program, the source text while it is read, and the values.
void benchPeak(const Input& input, Table& table) {
    const double bytes = static_cast<double>(input.text.size());
    const double peak = runProcess({READ_ONLY, "tree", input.path.string()}).peakBytes;
    table.add({"peak of reading into a tree / size", input.name(), mebibytes(peak), mebibytes(bytes),
               peak / bytes, 12});
}

} // namespace

void benchTree(const Input& input, int rounds, Table& table) {
    test_support::ReadTree first = test_support::readTree(input.path);
    if (first.result == nullptr)
        return;
    first.result.reset(); // only its formats are needed: each round builds the one tree of the process
    const jv::LoadOptions options{
        .format = input.isJson() ? jv::DocumentFormat::Json : jv::DocumentFormat::Yaml, .refLoader = {}};
    Samples values, build, walk, tearDown;
    for (int round = 0; round < rounds; ++round) {
        std::unique_ptr<jv::JVDocument> document;
        values.add(seconds([&] { document = jv::parseDocument(input.text, options); }));
        std::unique_ptr<openapi::ReadResult> result;
        build.add(seconds([&] { result = openapi::read(std::move(document), first.formats); }));
        walk.add(seconds([&] {
            openapi::NodeVisitHandler nothing;
            openapi::NodeVisitor(nothing).visit(result->root());
        }));
        // With the values, which end together with the tree.
        tearDown.add(seconds([&] { result.reset(); }));
    }
    const auto compare = [&](const char* what, const Samples& ours, const Samples& peer, double target) {
        table.add({what, input.name(), milliseconds(ours.median()), milliseconds(peer.median()),
                   ours.median() / peer.median(), target});
    };
    compare("build tree / read values", build, values, 1.5);
    compare("walk tree / read values", walk, values, 0.125);
    compare("tear down tree and values / build tree", tearDown, build, 0.5);
    benchPeak(input, table);
}

} // namespace specloom::bench
