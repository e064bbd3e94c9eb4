#include "bench/benchmarks.h"
#include "bench/configuration_text.h"
#include "bench/measure.h"
#include "bench/process.h"
#include "foundation/strings.h"
#include "test_support/corpora.h"
#include "test_support/read_tree.h"
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

/// Where outputs go, each in a folder of its own. All are removed at the end, for a disk that has just
/// removed thousands of files is slow to make new ones.
class Outputs {
  public:
    /// Time and memory of a run whose last argument is the path of the output.
    ProcessRun run(Arguments arguments) {
        last_ = folder_.at(std::to_string(count_++));
        arguments.push_back(last_);
        return runProcess(arguments);
    }
    [[nodiscard]] const std::string& last() const noexcept { return last_; }
    /// Of the files of the last one.
    [[nodiscard]] double bytes() const {
        std::uintmax_t sum = 0;
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(last_))
            sum += entry.is_regular_file() ? entry.file_size() : 0;
        return static_cast<double>(sum);
    }

  private:
    test_support::TemporaryFolder folder_;
    int count_ = 0;
    std::string last_;
};

Arguments generating(const std::string& kind, const std::string& generator, const std::string& document) {
    return {SPECLOOM_PROGRAM, "generate", kind, generator, document, "--output"};
}

/// A copy of the document in which formats that would have to be declared are extensions, for not every
/// generator reads a configuration; or none when it cannot be read.
std::optional<std::string> readableCopy(const fs::path& document,
                                        const test_support::TemporaryFolder& folder) {
    const test_support::ReadTree tree = test_support::readTree(document);
    if (tree.result == nullptr)
        return std::nullopt;
    std::string text = test_support::fileBytes(document);
    for (const std::string& format : tree.unknownFormats)
        for (const char* member : {"format\": \"{}\"", "format\":\"{}\"", "format: {}\n"}) {
            const std::string known = fmt::format(fmt::runtime(member), format);
            replaceAll(text, known, "x-" + known);
        }
    return folder.write(document.filename().string(), text);
}

/// The largest document of the corpora that the generator takes, as a file in `folder`.
std::optional<std::string> largestDocument(const std::string& kind, const std::string& generator,
                                           const test_support::TemporaryFolder& folder) {
    std::vector<fs::path> documents = test_support::corpusDocuments();
    std::sort(documents.begin(), documents.end(),
              [](const fs::path& a, const fs::path& b) { return fs::file_size(a) > fs::file_size(b); });
    for (const fs::path& document : documents)
        if (std::optional<std::string> copy = readableCopy(document, folder)) {
            try {
                Outputs().run(generating(kind, generator, *copy));
                return copy;
            } catch (const std::runtime_error&) {
                continue; // two operations of one name, perhaps
            }
        }
    return std::nullopt;
}

/// The medians of several runs in turn, and what the last ones took of memory and of the disk.
struct Costs {
    double seconds, lintSeconds, copySeconds; ///< of processor time; to copy is to copy the files
    double peakBytes, lintPeakBytes, fileBytes;
};
Costs costsOf(const Arguments& generate, const Arguments& lint, int rounds) {
    Outputs outputs, copies;
    Samples ours, reading, copying;
    ProcessRun ourRun{}, lintRun{};
    for (int round = 0; round < rounds; ++round) {
        ours.add((ourRun = outputs.run(generate)).cpuSeconds);
        reading.add((lintRun = runProcess(lint)).cpuSeconds);
        copying.add(copies.run({"/bin/cp", "-r", outputs.last()}).cpuSeconds);
    }
    return {ours.median(),    reading.median(),  copying.median(),
            ourRun.peakBytes, lintRun.peakBytes, outputs.bytes()};
}

void benchGenerator(const std::string& kind, const std::string& generator, int rounds, Table& table) {
    const test_support::TemporaryFolder folder;
    const std::optional<std::string> document = largestDocument(kind, generator, folder);
    if (!document)
        return;
    const std::string name = fs::path(*document).filename().string();
    const std::string config = folder.write("config.json", configurationText(R"("lint":{"extends":[]})", {}));
    const Arguments lint = {SPECLOOM_PROGRAM, "lint", "--config", config, *document};
    const Costs costs = costsOf(generating(kind, generator, *document), lint, rounds);
    constexpr double limit = 1.5;
    table.add({fmt::format("generate {} - cp / lint without rules", generator), name,
               milliseconds(costs.seconds), milliseconds(costs.lintSeconds),
               (costs.seconds - costs.copySeconds) / costs.lintSeconds, limit});
    table.add({fmt::format("peak of generate {} - files / of that lint", generator), name,
               mebibytes(costs.peakBytes), mebibytes(costs.lintPeakBytes),
               (costs.peakBytes - costs.fileBytes) / costs.lintPeakBytes, limit});
}

/// With which every operation of every document has a name and a group.
constexpr const char* springSection =
    R"("server_spring":{"action_naming":["id","url"],"controller_grouping":["tag","url"]})";

/// A configuration with one member of "generate", and no rules of lint.
std::string generatorConfiguration(const std::string& section, const std::vector<std::string>& formats) {
    return configurationText(fmt::format(R"("lint":{{"extends":[]}},"generate":{{{}}})", section), formats);
}

/// What a generator that reads a configuration costs for the whole document of GitHub, in which hardly
/// anything stands against any of them; nothing when it is not there. `section` is the member of "generate".
struct WholeDocument {
    std::string name;
    Costs costs;
};
std::optional<WholeDocument> costsOfWholeDocument(const std::string& kind, const std::string& generator,
                                                  const std::string& section, int rounds) {
    const fs::path document = test_support::corporaFolder() / "openapi/github-3.0.json";
    const test_support::ReadTree tree = test_support::readTree(document);
    if (tree.result == nullptr)
        return std::nullopt;
    const test_support::TemporaryFolder folder;
    const std::string config =
        folder.write("config.json", generatorConfiguration(section, tree.unknownFormats));
    return WholeDocument{document.filename().string(),
                         costsOf({SPECLOOM_PROGRAM, "generate", kind, generator, document.string(),
                                  "--config", config, "--output"},
                                 {SPECLOOM_PROGRAM, "lint", "--config", config, document.string()}, rounds)};
}

/// A Spring server.
void benchSpring(int rounds, Table& table) {
    const auto whole = costsOfWholeDocument("server", "spring", springSection, rounds);
    if (!whole)
        return;
    const auto& [name, costs] = *whole;
    const double peer = costs.lintSeconds + costs.copySeconds;
    constexpr double limit = 3;
    table.add({"generate spring / lint without rules + cp", name, milliseconds(costs.seconds),
               milliseconds(peer), costs.seconds / peer, limit});
    table.add({"peak of generate spring / of that lint", name, mebibytes(costs.peakBytes),
               mebibytes(costs.lintPeakBytes), costs.peakBytes / costs.lintPeakBytes, limit});
}

/// A documentation site with a page for each operation and each schema.
void benchDocHtml(int rounds, Table& table) {
    const auto whole = costsOfWholeDocument(
        "doc", "html", R"("doc_html":{"operations":"separate","resources":"separate"})", rounds);
    if (!whole)
        return;
    const auto& [name, costs] = *whole;
    const double peer = costs.lintSeconds + costs.copySeconds;
    // A second is what is promised; the other ratio tells more about the machine.
    constexpr double secondsLimit = 1, peerLimit = 10, memoryLimit = 4;
    table.add({"generate doc html / a second", name, milliseconds(costs.seconds), milliseconds(1),
               costs.seconds, secondsLimit});
    table.add({"generate doc html / lint without rules + cp", name, milliseconds(costs.seconds),
               milliseconds(peer), costs.seconds / peer, peerLimit});
    table.add({"peak of generate doc html - that lint / files", name,
               mebibytes(costs.peakBytes - costs.lintPeakBytes), mebibytes(costs.fileBytes),
               (costs.peakBytes - costs.lintPeakBytes) / costs.fileBytes, memoryLimit});
}

/// A document whose operations take turns with the tags, and all use one schema.
std::string documentWith(std::size_t operations, std::size_t tags) {
    std::string text =
        R"({"openapi":"3.1.0","info":{"title":"T","version":"1.0.0"},"servers":[{"url":"/"}],"tags":[)";
    for (std::size_t i = 0; i < tags; ++i)
        text += fmt::format(R"({}{{"name":"tag{}"}})", i == 0 ? "" : ",", i);
    text += R"(],"components":{"schemas":{"S":{"type":"object"}}},"paths":{)";
    for (std::size_t i = 0; i < operations; ++i)
        text += fmt::format(
            R"({}"/p{}/{{id}}":{{"get":{{"operationId":"o{}","tags":["tag{}"],"parameters":[{{"name":"id","in":"path","required":true,"schema":{{"type":"string"}}}}],"responses":{{"200":{{"description":"","content":{{"application/json":{{"schema":{{"$ref":"#/components/schemas/S"}}}}}}}}}}}}}})",
            i == 0 ? "" : ",", i, i, i % tags);
    return text + "}}";
}

/// A document whose schemas hold one another in a ring, each the next one and a list of another.
std::string documentWithSchemas(std::size_t schemas) {
    std::string text =
        R"({"openapi":"3.1.0","info":{"title":"T","version":"1.0.0"},"tags":[{"name":"a"}],"paths":{"/p":{"get":{"operationId":"o","tags":["a"],"responses":{"200":{"description":"","content":{"application/json":{"schema":{"$ref":"#/components/schemas/S0"}}}}}}}},"components":{"schemas":{)";
    for (std::size_t i = 0; i < schemas; ++i)
        text += fmt::format(
            R"({}"S{}":{{"type":"object","properties":{{"next":{{"$ref":"#/components/schemas/S{}"}},"others":{{"type":"array","items":{{"$ref":"#/components/schemas/S{}"}}}},"name":{{"type":"string"}}}}}})",
            i == 0 ? "" : ",", i, (i + 1) % schemas, i / 2);
    return text + "}}}";
}

struct GrowingDocument {
    std::string name; ///< of what it has ten thousand times
    std::string (*make)(std::size_t count);
};

/// Without a configuration the generator gets none.
void benchGeneratorGrowth(const std::string& kind, const std::string& generator,
                          const std::string& configuration, const GrowingDocument& growing, int rounds,
                          Table& table) {
    constexpr std::size_t few = 1'000, many = 10'000;
    const test_support::TemporaryFolder folder;
    const auto argumentsFor = [&](const char* name, std::size_t count) {
        Arguments arguments = generating(kind, generator, folder.write(name, growing.make(count)));
        if (!configuration.empty())
            arguments.insert(arguments.end() - 1, {"--config", folder.write("config.json", configuration)});
        return arguments;
    };
    const Arguments small = argumentsFor("small.json", few);
    const Arguments large = argumentsFor("large.json", many);
    Outputs outputs;
    Samples smallTimes, largeTimes;
    ProcessRun smallRun{}, largeRun{};
    for (int round = 0; round < rounds; ++round) {
        smallTimes.add((smallRun = outputs.run(small)).cpuSeconds);
        largeTimes.add((largeRun = outputs.run(large)).cpuSeconds);
    }
    constexpr double factor = static_cast<double>(many) / static_cast<double>(few);
    constexpr double inProportion = 1.5;
    table.add({fmt::format("time of generate {}, 10 times / 10", generator), growing.name,
               milliseconds(largeTimes.median()), milliseconds(smallTimes.median()),
               largeTimes.median() / smallTimes.median() / factor, inProportion});
    table.add({fmt::format("memory of generate {}, 10 times / 10", generator), growing.name,
               mebibytes(largeRun.peakBytes), mebibytes(smallRun.peakBytes),
               largeRun.peakBytes / smallRun.peakBytes / factor, inProportion});
}

} // namespace

void benchGenerate(int rounds, Table& table) {
    benchGenerator("server", "express", rounds, table);
    benchGenerator("client", "fetch", rounds, table);
    benchSpring(rounds, table);
    benchDocHtml(rounds, table);
    const int fewerRounds = (rounds + 2) / 3;
    const GrowingDocument operations[] = {
        {"10,000 operations", [](std::size_t count) { return documentWith(count, 10); }},
        {"10,000 operations, a tag each", [](std::size_t count) { return documentWith(count, count); }},
    };
    for (const GrowingDocument& document : operations) {
        benchGeneratorGrowth("server", "express", "", document, fewerRounds, table);
        benchGeneratorGrowth("client", "fetch", "", document, fewerRounds, table);
        benchGeneratorGrowth("doc", "html", "", document, fewerRounds, table);
        benchGeneratorGrowth("server", "spring", generatorConfiguration(springSection, {}), document,
                             fewerRounds, table);
    }
    benchGeneratorGrowth("server", "spring", generatorConfiguration(springSection, {}),
                         {"10,000 schemas", documentWithSchemas}, fewerRounds, table);
}

#else

void benchGenerate(int, Table&) {}

#endif

} // namespace specloom::bench
