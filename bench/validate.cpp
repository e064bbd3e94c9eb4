#include "bench/measure.h"
#include "jv/deser.h"
#include "openapi/document_schema.h"

#include <algorithm> // std::sort
#include <cstdlib>   // std::atoi
#include <exception> // std::exception
#include <vector>    // std::vector

#include <fmt/core.h>

/// validate FILE ROUNDS: decides so many times whether a document satisfies the schema of OpenAPI, compiled
/// once, and prints "valid" or "invalid" and the median of the milliseconds of processor time. One side of
/// compare-schema-validation.
int main(int argc, char** argv) {
    namespace jv = specloom::jv;
    if (argc != 3)
        return 2;
    try {
        const jv::LoadedDocument loaded = jv::loadDocument(argv[1]);
        const jv::JV& document = *loaded.document->root();
        const jv::schema::Schema& schema =
            specloom::openapi::documentSchema(document.getRequiredString("openapi")->text());
        specloom::bench::Samples samples;
        bool valid = false;
        for (int round = 0; round < std::atoi(argv[2]); ++round)
            samples.add(specloom::bench::seconds([&] { valid = schema.isValid(document); }));
        fmt::print("{} {:.3f}\n", valid ? "valid" : "invalid", samples.median() * 1e3);
    } catch (const std::exception& error) {
        fmt::print(stderr, "{}\n", error.what());
        return 2;
    }
    return 0;
}
