// The generators: whatever the document names, files come to stand below the output folder and nowhere else,
// or nothing is written and one line or a report says why; and the same document gives the same files.

#include "foundation/memory_file_system.h"
#include "fuzz/check.h"
#include "fuzz/generators.h"
#include "fuzz/java_check.h"
#include "fuzz/tree_check.h"
#include "openapi_generator/plugin_runner.h"

#include <iostream>  // std::cerr, std::cout
#include <stdexcept> // std::runtime_error
#include <utility>   // std::move

namespace {

namespace fuzz = specloom::fuzz;
using specloom::MemoryFileSystem;

struct Outcome {
    MemoryFileSystem::Files files;
    std::string failure;
};

Outcome generate(const fuzz::Generator& generator, std::unique_ptr<specloom::openapi::ReadResult> document) {
    auto memory = std::make_unique<MemoryFileSystem>();
    const MemoryFileSystem& made = *memory;
    specloom::openapi_generator::PluginRunner runner(std::move(memory));
    runner.addPlugin(generator.make(runner)).setParam("outputPath", "out");
    Outcome outcome;
    try {
        runner.run(std::move(document));
    } catch (const std::runtime_error& error) {
        outcome.failure = error.what();
    }
    outcome.files = made.files();
    return outcome;
}

/// Null when the text is no OpenAPI document in JSON.
std::unique_ptr<specloom::openapi::ReadResult> read(std::string_view text) {
    auto document = fuzz::readIfGood(text, specloom::jv::DocumentFormat::Json);
    return document != nullptr ? fuzz::readIfGood(std::move(document)) : nullptr;
}

void check(const Outcome& outcome) {
    fuzz::require(outcome.failure.find('\n') == std::string::npos,
                  "a failure is one line: " + outcome.failure);
    fuzz::require(outcome.failure.empty() || outcome.files.empty(),
                  "a failure leaves nothing behind: " + outcome.failure);
    for (const auto& [path, content] : outcome.files) {
        fuzz::require(path.starts_with("out/"), "files stand below the output folder: " + path);
        if (const std::string fault = path.ends_with(".java") ? fuzz::faultOfJava(path, content) : "";
            !fault.empty())
            fuzz::require(false, path + " has " + fault + ":\n" + content);
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*arguments*/) {
    // Notes and reports about each document would fill the log.
    std::cerr.setstate(std::ios::failbit);
    std::cout.setstate(std::ios::failbit);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzz::textOf(data, size);
    for (const fuzz::Generator& generator : fuzz::generators()) {
        auto document = read(text);
        if (document == nullptr)
            return 0;
        const Outcome outcome = generate(generator, std::move(document));
        check(outcome);
        const Outcome again = generate(generator, read(text));
        fuzz::require(again.files == outcome.files && again.failure == outcome.failure,
                      "a document always gives the same");
    }
    return 0;
}
