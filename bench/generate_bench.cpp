#include "bench/benchmarks.h"
#include "bench/configuration_text.h"
#include "bench/measure.h"
#include "bench/process.h"
#include "test_support/corpora.h"
#include "test_support/temporary_folder.h"

#include <algorithm>  // std::sort
#include <cstdint>    // std::uintmax_t
#include <filesystem> // std::filesystem
#include <optional>   // std::optional
#include <stdexcept>  // std::runtime_error
#include <string>     // std::string
#include <vector>     // std::vector

#include <fmt/core.h>

namespace specloom::bench {

namespace fs = std::filesystem;

#ifdef SPECLOOM_PROGRAM

namespace {

using Arguments = std::vector<std::string>;

/// A folder to generate into, which is empty before each run.
class Output {
  public:
    /// Time and memory of a run whose last argument is the path of the output.
    ProcessRun run(Arguments arguments) const {
        fs::remove_all(path());
        arguments.push_back(path());
        return runProcess(arguments);
    }
    [[nodiscard]] std::string path() const { return folder_.at("out"); }
    [[nodiscard]] double bytes() const {
        std::uintmax_t sum = 0;
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(path()))
            sum += entry.is_regular_file() ? entry.file_size() : 0;
        return static_cast<double>(sum);
    }

  private:
    test_support::TemporaryFolder folder_;
};

Arguments generating(const std::string& kind, const std::string& generator, const std::string& document) {
    return {SPECLOOM_PROGRAM, "generate", kind, generator, document, "--output"};
}

bool makesFiles(const std::string& kind, const std::string& generator, const fs::path& document) {
    try {
        static_cast<void>(Output().run(generating(kind, generator, document.string())));
        return true;
    } catch (const std::runtime_error&) {
        return false;
    }
}

/// The largest document of the corpora that the generator takes.
std::optional<fs::path> largestDocument(const std::string& kind, const std::string& generator) {
    const fs::path corpora = test_support::corporaFolder();
    if (corpora.empty())
        return std::nullopt;
    std::vector<fs::path> documents;
    for (const char* extension : {".json", ".yaml"})
        for (const fs::path& file : test_support::filesBelow(corpora / "openapi", extension))
            documents.push_back(file);
    std::sort(documents.begin(), documents.end(),
              [](const fs::path& a, const fs::path& b) { return fs::file_size(a) > fs::file_size(b); });
    for (const fs::path& document : documents)
        if (makesFiles(kind, generator, document))
            return document;
    return std::nullopt;
}

void benchGenerator(const std::string& kind, const std::string& generator, int rounds, Table& table) {
    const std::optional<fs::path> document = largestDocument(kind, generator);
    if (!document)
        return;
    const test_support::TemporaryFolder folder;
    const std::string config = folder.write("config.json", configurationText(R"("lint":{"extends":[]})", {}));
    const Arguments lint = {SPECLOOM_PROGRAM, "lint", "--config", config, document->string()};
    const Output output, copy;
    Samples ours, reading, copying;
    ProcessRun ourRun{}, lintRun{};
    for (int round = 0; round < rounds; ++round) {
        ours.add((ourRun = output.run(generating(kind, generator, document->string()))).cpuSeconds);
        reading.add((lintRun = runProcess(lint)).cpuSeconds);
        copying.add(copy.run({"/bin/cp", "-r", output.path()}).cpuSeconds);
    }
    constexpr double limit = 1.5;
    table.add({fmt::format("{} {} - cp of its files / lint without rules", kind, generator),
               document->filename().string(), milliseconds(ours.median()), milliseconds(reading.median()),
               (ours.median() - copying.median()) / reading.median(), limit});
    table.add({fmt::format("peak memory of {} {} - its files / that lint", kind, generator),
               document->filename().string(), mebibytes(ourRun.peakBytes), mebibytes(lintRun.peakBytes),
               (ourRun.peakBytes - output.bytes()) / lintRun.peakBytes, limit});
}

/// A document whose operations take turns with the tags.
std::string documentWith(std::size_t operations, std::size_t tags) {
    std::string text = R"({"openapi":"3.1.0","info":{"title":"T","version":"1.0.0"},"tags":[)";
    for (std::size_t i = 0; i < tags; ++i)
        text += fmt::format(R"({}{{"name":"tag{}"}})", i == 0 ? "" : ",", i);
    text += R"(],"paths":{)";
    for (std::size_t i = 0; i < operations; ++i)
        text += fmt::format(
            R"({}"/p{}/{{id}}":{{"get":{{"operationId":"o{}","tags":["tag{}"],"parameters":[{{"name":"id","in":"path","required":true,"schema":{{"type":"string"}}}}],"responses":{{}}}}}})",
            i == 0 ? "" : ",", i, i, i % tags);
    return text + "}}";
}

void benchGeneratorGrowth(const std::string& kind, const std::string& generator, bool isTagEach, int rounds,
                          Table& table) {
    constexpr std::size_t few = 1'000, many = 10'000;
    const test_support::TemporaryFolder folder;
    const auto write = [&](const char* name, std::size_t count) {
        return folder.write(name, documentWith(count, isTagEach ? count : 10));
    };
    const Arguments small = generating(kind, generator, write("small.json", few));
    const Arguments large = generating(kind, generator, write("large.json", many));
    const Output output;
    Samples smallTimes, largeTimes;
    ProcessRun smallRun{}, largeRun{};
    for (int round = 0; round < rounds; ++round) {
        smallTimes.add((smallRun = output.run(small)).cpuSeconds);
        largeTimes.add((largeRun = output.run(large)).cpuSeconds);
    }
    const std::string document = fmt::format("10,000 operations{}", isTagEach ? ", a tag each" : "");
    constexpr double factor = static_cast<double>(many) / static_cast<double>(few);
    constexpr double inProportion = 1.5;
    table.add({fmt::format("time of {} {}, 10 times the size / 10", kind, generator), document,
               milliseconds(largeTimes.median()), milliseconds(smallTimes.median()),
               largeTimes.median() / smallTimes.median() / factor, inProportion});
    table.add({fmt::format("memory of {} {}, 10 times the size / 10", kind, generator), document,
               mebibytes(largeRun.peakBytes), mebibytes(smallRun.peakBytes),
               largeRun.peakBytes / smallRun.peakBytes / factor, inProportion});
}

} // namespace

void benchGenerate(int rounds, Table& table) {
    benchGenerator("server", "express", rounds, table);
    benchGenerator("client", "fetch", rounds, table);
    const int fewerRounds = (rounds + 2) / 3;
    for (const bool isTagEach : {false, true}) {
        benchGeneratorGrowth("server", "express", isTagEach, fewerRounds, table);
        benchGeneratorGrowth("client", "fetch", isTagEach, fewerRounds, table);
    }
}

#else

void benchGenerate(int, Table&) {}

#endif

} // namespace specloom::bench
