#include "bench/benchmarks.h"
#include "bench/configuration_text.h"
#include "bench/measure.h"
#include "bench/process.h"
#include "test_support/growing_documents.h"
#include "test_support/temporary_folder.h"

#include <algorithm>   // std::max
#include <fstream>     // std::ofstream
#include <string_view> // std::string_view

#include <fmt/core.h>

namespace specloom::bench {

#ifdef SPECLOOM_PROGRAM

namespace {

using test_support::GrowingDocument;

/// One kind of document in one size, as files.
class GrowthInput {
  public:
    GrowthInput(const GrowingDocument& document, std::size_t size) {
        const std::string source = write("source", document.extension, document.source(size));
        const std::string config =
            write("config", "json",
                  configurationText(R"("lint":{"extends":["all"]},"generate":{"server_spring":)"
                                    R"({"action_naming":"url","controller_grouping":["tag","url"]}})",
                                    {}));
        arguments_ = {SPECLOOM_PROGRAM, document.command, "--config", config};
        if (std::string_view(document.command) == "generate server spring")
            arguments_ = {SPECLOOM_PROGRAM, "generate", "server",   "spring",
                          "--config",       config,     "--output", folder_.at("output")};
        else if (arguments_[1] == "format")
            arguments_ = {SPECLOOM_PROGRAM, "format", "--output",
                          folder_.at(std::string("output.") + document.extension)};
        arguments_.push_back(source);
        if (document.destination != nullptr)
            arguments_.push_back(write("destination", document.extension, document.destination(size)));
    }

    /// Processor time and memory beyond those of a run that does nothing.
    [[nodiscard]] ProcessRun run() const {
        constexpr int refusedOrBreaking = 1;
        static const ProcessRun nothing = runProcess({SPECLOOM_PROGRAM, "--version"});
        ProcessRun run = runProcess(arguments_, refusedOrBreaking);
        run.cpuSeconds = std::max(run.cpuSeconds - nothing.cpuSeconds, 1e-3);
        run.peakBytes = std::max(run.peakBytes - nothing.peakBytes, double{1 << 20});
        return run;
    }

  private:
    [[nodiscard]] std::string write(const char* stem, const char* extension, const std::string& text) const {
        std::string path = folder_.at(fmt::format("{}.{}", stem, extension));
        std::ofstream(path, std::ios::binary) << text;
        return path;
    }

    test_support::TemporaryFolder folder_;
    std::vector<std::string> arguments_;
};

} // namespace

void benchGrowth(int rounds, Table& table) {
    constexpr std::size_t factor = 16;   // four doublings
    constexpr double inProportion = 2.5; // sorting, and what no longer fits into caches, included
    for (const GrowingDocument& document : test_support::growingDocuments()) {
        const GrowthInput small(document, document.smallest);
        const GrowthInput large(document, document.smallest * factor);
        Samples smallTimes, largeTimes;
        ProcessRun smallRun{}, largeRun{};
        for (int round = 0; round < rounds; ++round) {
            smallTimes.add((smallRun = small.run()).cpuSeconds);
            largeTimes.add((largeRun = large.run()).cpuSeconds);
        }
        const auto row = [&](const char* what, const std::string& figure, const std::string& peer,
                             double ratio) {
            table.add({fmt::format("{} of {}, 16 times the size / 16", what, document.command), document.name,
                       figure, peer, ratio / static_cast<double>(factor), inProportion});
        };
        row("time", milliseconds(largeTimes.median()), milliseconds(smallTimes.median()),
            largeTimes.median() / smallTimes.median());
        row("memory", mebibytes(largeRun.peakBytes), mebibytes(smallRun.peakBytes),
            largeRun.peakBytes / smallRun.peakBytes);
    }
}

#else

void benchGrowth(int, Table&) {}

#endif

} // namespace specloom::bench
